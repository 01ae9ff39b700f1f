// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/FileOverwrite.h"

#include "base/saving/FileCalls.h"
#include "base/saving/KeptCopies.h"
#include "base/saving/SaveProblems.h"

#include <QFileInfo>

#include <cerrno>

namespace brinemark
{

namespace
{

/// Makes the bytes the content of an open file, closes it, and reads it back.
FailedCall fillOpenFile(FileCalls &calls, const QString &path, OpenFile &file, const QByteArray &bytes)
{
    CallSeries done;
    if (!done("write", writeWhole(calls, file.descriptor, bytes)) ||
        !done("truncate", calls.truncate(file.descriptor, bytes.size())) ||
        !done("fsync", calls.sync(file.descriptor)) || !done("close", file.close()))
        return done.failed;
    QByteArray written;
    if (const FailedCall failed = readWhole(calls, path, written))
        return failed;
    done("comparison", written == bytes ? 0 : EIO);
    return done.failed;
}

bool putBack(FileCalls &calls, const QString &path, const QByteArray &bytes)
{
    OpenFile file(calls);
    return calls.open(path, FileCalls::Mode::Overwrite, file.descriptor) == 0 &&
           !fillOpenFile(calls, path, file, bytes);
}

} // namespace

WriteResult overwriteFile(FileCalls &calls, const QString &target, const QByteArray &bytes)
{
    WriteResult result;
    const auto failedAt = [&result](FailedCall failed) {
        result.error = errorTextOf(failed);
        result.problem = problemOf(failed.error);
        return result;
    };
    QByteArray old;
    if (const FailedCall failed = readWhole(calls, target, old))
        return failedAt(failed);
    KeptCopy copy(calls);
    if (const FailedCall failed = copy.make(QFileInfo(target).fileName(), old)) {
        failedAt(failed);
        result.problem = SaveProblem::NoSafeCopy; // neither room nor permission is missing where the file is
        return result;
    }
    OpenFile file(calls);
    if (const int error = calls.open(target, FileCalls::Mode::Overwrite, file.descriptor))
        return failedAt({"open", error});

    const FailedCall failed = fillOpenFile(calls, target, file, bytes);
    if (!failed) {
        result.ok = true;
        result.onDisk = WriteResult::OnDisk::New;
        result.stamp = FileStamp::of(target, bytes);
    } else if (!putBack(calls, target, old)) {
        result.onDisk = WriteResult::OnDisk::Damaged;
        result.keptCopy = copy.keep();
        result.stamp = FileStamp::of(target);
    }
    return failed ? failedAt(failed) : result;
}

} // namespace brinemark
