// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileDialog>
#include <QList>
#include <QString>

#include <functional>

namespace brinemark
{

/// A kind of file that can be saved.
struct FileKind {
    QString suffix; ///< without the full stop
    QString filter; ///< as a person reads it: "Pictures (*.png)"
};

/// What a save panel begins with.
struct SavePanelOptions {
    QString objectName;
    QString message = {};       ///< the window's title; empty for the toolkit's own
    QString folder = {};        ///< empty for the toolkit's own choice
    QString proposedName = {};  ///< any text; what a file cannot be called by is replaced
    QList<FileKind> kinds = {}; ///< the first is chosen
};

/// The save panel, the toolkit's own in every desktop, so that it is the same for all kinds of files. A name without
/// the suffix of one of the kinds gets that of the chosen one, whatever else it has dots in; an existing file is asked
/// about, after that.
class SavePanel : public QFileDialog
{
    Q_OBJECT

public:
    SavePanel(QWidget *window, const SavePanelOptions &options);

protected:
    void accept() override;

private:
    [[nodiscard]] QString chosenSuffix() const;

    QList<FileKind> m_kinds;
};

/// Gives an open or save panel of the toolkit its size and readable columns.
void arrangeFilePanel(QFileDialog &panel);

/// Opens the panel as a sheet of `window` and deletes it at its end. `completion` gets the chosen path, empty when
/// cancelled, once the sheet is gone.
void openFilePanel(QWidget *window, QFileDialog *panel, std::function<void(const QString &path)> completion);

/// Makes a save panel and opens it.
void beginSavePanel(QWidget *window, const SavePanelOptions &options,
                    std::function<void(const QString &path)> completion);

/// `text` as a file can be called on every desktop, without a suffix: no separators of folders, no signs that shells
/// and other systems keep for themselves, no full stop in front, and not too long. "-" where nothing is left.
[[nodiscard]] QString fileNameFor(const QString &text);

/// The user's documents folder; empty when there is none.
[[nodiscard]] QString documentsFolder();

} // namespace brinemark
