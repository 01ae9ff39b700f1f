// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileDialog>
#include <QList>
#include <QString>

#include <functional>

namespace brinemark
{

/// A file type that can be saved.
struct FileKind {
    QString suffix; ///< without the full stop
    QString filter; ///< as shown to the user: "Pictures (*.png)"
};

/// The initial state of a save panel.
struct SavePanelOptions {
    QString objectName;
    QString message = {};       ///< the window's title; the toolkit's own if empty
    QString folder = {};        ///< the toolkit's own choice if empty
    QString proposedName = {};  ///< any text; fileNameFor() makes a file name of it
    QList<FileKind> kinds = {}; ///< the first one is preselected
};

/// The save panel: the toolkit's own on every desktop, so that it behaves alike for all file types. A name without the
/// suffix of one of the kinds gets the suffix of the chosen kind, even when it contains dots. The panel then asks
/// before it overwrites an existing file.
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

/// Sets the size of a file panel and makes its columns wide enough to read.
void arrangeFilePanel(QFileDialog &panel);

/// Opens the panel as a sheet of `window` and deletes it when it closes. After that, `completion` receives the chosen
/// path, which is empty when the panel was cancelled.
void openFilePanel(QWidget *window, QFileDialog *panel, std::function<void(const QString &path)> completion);

/// Makes a save panel and opens it.
void beginSavePanel(QWidget *window, const SavePanelOptions &options,
                    std::function<void(const QString &path)> completion);

/// `text` turned into a file name, without a suffix, that every desktop accepts: path separators, characters reserved
/// by shells or file systems and a leading full stop are removed or replaced, and the length is limited. "-" when
/// nothing is left.
[[nodiscard]] QString fileNameFor(const QString &text);

/// The user's documents folder; empty when there is none.
[[nodiscard]] QString documentsFolder();

} // namespace brinemark
