// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace brinemark
{

/// The result of an open or save panel: whether the user confirmed, the chosen path, and the final state of the
/// make-default box.
struct FilePanelAnswer {
    bool ok = false;
    QString path;
    bool makeDefault = false;
};
using FilePanelCompletion = std::function<void(const FilePanelAnswer &)>;

/// Opens a sheet of `window` that lists only tank files: files with the extension "xml" and the content of a tank file.
/// When `makeDefault` is set, the sheet has the make-default check box in that state. Object name "openPanel", the box
/// "makeDefaultCheck".
void beginOpenPanel(QWidget *window, std::optional<bool> makeDefault, FilePanelCompletion completion);

/// Whether the path is that of a tank file. Otherwise beeps and says on a sheet of `window` what it is, or that there
/// is no such file.
[[nodiscard]] bool checkTankFile(QWidget *window, const QString &path);

/// Opens a sheet of `window` that asks where to save a tank file. It adds the extension "xml" when it is missing and
/// asks before an existing file is overwritten. Object name "savePanel".
void beginSavePanel(QWidget *window, const QString &proposedName, bool makeDefault, FilePanelCompletion completion);

} // namespace brinemark
