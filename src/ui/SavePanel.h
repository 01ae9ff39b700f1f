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
    QString proposedName = {};  ///< any text; fileNameFor() makes a file name of it
    QList<FileKind> kinds = {}; ///< the first one is preselected
    bool extended = false;      ///< controls will be added, so that the panel cannot be the desktop's own
};

/// The save panel: the desktop's own where there is one, unless it is extended. A name without the suffix of one of the
/// kinds gets the suffix of the chosen kind, even when it contains dots. The panel asks before it overwrites an
/// existing file.
///
/// Without Q_OBJECT, because the toolkit replaces only objects of exactly its own class by the desktop's panel.
class SavePanel : public QFileDialog
{
public:
    SavePanel(QWidget *window, const SavePanelOptions &options);

    /// The chosen file with its suffix; selectedFiles() lacks it where the desktop's panel leaves it out.
    [[nodiscard]] QString chosenFile() const;

protected:
    void accept() override;

private:
    [[nodiscard]] QString chosenSuffix() const;
    [[nodiscard]] QString withSuffix(const QString &name) const;

    QList<FileKind> m_kinds;
};

/// Opens panelFolder() in a file panel, sets its size and makes its columns wide enough to read.
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

/// Where file panels start: beside the open file; without one, where a panel last chose a file; else in the user's
/// documents. Empty when none of these exists.
[[nodiscard]] QString panelFolder();

} // namespace brinemark
