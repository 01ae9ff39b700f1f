// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace brinemark
{

/// What the command line asks for.
struct CommandLine {
    QString file;       ///< the tank file to open; empty for the default file
    QString renderTo;   ///< write a picture of the main window to this path and end
    bool print = false; ///< print the file without a question and end
    bool dark = false;  ///< use the dark palette whatever the desktop says
};

/// Reads the arguments. Answers nothing when the program should end at once (help, version, a wrong option), with the
/// text to print and the exit code set.
[[nodiscard]] std::optional<CommandLine> parseCommandLine(const QStringList &arguments, QString &output, int &exitCode);

} // namespace brinemark
