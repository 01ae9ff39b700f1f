// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace brinemark
{

/// The settings that the command line contains.
struct CommandLine {
    QString file;       ///< the tank file to open; the default file if empty
    QString renderTo;   ///< if set, write a picture of the main window to this path and quit
    bool print = false; ///< print the file without asking and quit
    bool dark = false;  ///< use the dark palette whatever the desktop says

    /// Whether the program does one thing and quits, so that nobody is there to answer a question.
    [[nodiscard]] bool unattended() const { return print || !renderTo.isEmpty(); }
};

/// Parses the arguments. Returns nullopt when the program should quit at once (help, version, an unknown option);
/// `output` and `exitCode` are then set.
[[nodiscard]] std::optional<CommandLine> parseCommandLine(const QStringList &arguments, QString &output, int &exitCode);

/// A sentence that says why the file could not be opened.
[[nodiscard]] QString whyNotOpened(const QString &path);

} // namespace brinemark
