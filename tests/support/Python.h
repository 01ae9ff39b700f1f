// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>

namespace brinemark::test
{

/// The outcome of a run of python3, which reads or writes a format independently of our code.
struct PythonRun {
    int exitCode = -1; ///< -1 when it did not end normally
    QByteArray output;
    QByteArray errors;
};

/// Runs python3 ("-c" and a program, or a script and its arguments) with `input` as its standard input.
inline PythonRun runPython(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess python;
    python.start(QStringLiteral("python3"), arguments);
    if (!python.waitForStarted())
        return {-1, {}, "python3 is needed: " + python.errorString().toUtf8()};
    python.write(input);
    python.closeWriteChannel();
    const bool ended = python.waitForFinished(60'000) && python.exitStatus() == QProcess::NormalExit;
    return {ended ? python.exitCode() : -1, python.readAllStandardOutput(), python.readAllStandardError()};
}

} // namespace brinemark::test
