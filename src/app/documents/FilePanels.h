// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace brinemark
{

/// What an open or save panel answers: OK or not, the chosen path, and the make-default box at that moment.
struct FilePanelAnswer {
    bool ok = false;
    QString path;
    bool makeDefault = false;
};
using FilePanelCompletion = std::function<void(const FilePanelAnswer &)>;

/// A sheet of `window` that offers tank files only: extension "xml" and the content of a tank file. With `makeDefault`
/// it carries the make-default check box in that state. Object name "openPanel", the box "makeDefaultCheck".
void beginOpenPanel(QWidget *window, std::optional<bool> makeDefault, FilePanelCompletion completion);

/// A sheet of `window` that asks where to save a tank file, with a proposed name; the extension "xml" is added when it
/// is missing, and an existing file is asked about. Object name "savePanel".
void beginSavePanel(QWidget *window, const QString &proposedName, bool makeDefault, FilePanelCompletion completion);

} // namespace brinemark
