// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/SafeFile.h"

#include "base/Log.h"
#include "base/saving/FileCalls.h"
#include "base/saving/FileOverwrite.h"
#include "base/saving/FileReplacement.h"
#include "base/saving/SaveProblems.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

namespace brinemark
{

namespace
{

/// Follows links one by one, because a link whose target does not exist yet has no canonical path.
QString linkTarget(const QString &path)
{
    QString target = path;
    constexpr int mostLinks = 40; // as Linux allows
    for (int i = 0; i < mostLinks && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

WriteResult saveFailed(SaveProblem problem, const QString &error)
{
    WriteResult result;
    result.problem = problem;
    result.error = error;
    return result;
}

WriteResult saveFailed(FailedCall failed)
{
    return saveFailed(problemOf(failed.error), errorTextOf(failed));
}

/// Whether the file can be written, but not be replaced: its folder is not writable, or it is a mount point itself.
bool onlyTheFolderForbids(FailedCall failed)
{
    const QByteArray call(failed.call);
    const bool needsTheFolder = call == FileReplacement::createCall || call == FileReplacement::renameCall;
    return needsTheFolder && (failed.error == EACCES || failed.error == EPERM || failed.error == EROFS ||
                              failed.error == EBUSY || failed.error == EXDEV);
}

WriteResult saveWithCalls(FileCalls &calls, const QString &target, const QByteArray &bytes, const QString &attributesOf)
{
    FileState before;
    const bool exists = calls.state(target, before) == 0;
    if (exists) {
        if (const int refused = calls.mayWrite(target))
            return saveFailed({"access", refused});
    }
    removeAbandonedTemporaryFiles(target);
    FileReplacement replacement(calls, target);
    const FailedCall failed = replacement.write(bytes, exists ? target : attributesOf);
    if (failed && exists && onlyTheFolderForbids(failed)) {
        qCInfo(logFile) << target << "is written over:" << errorTextOf(failed);
        return overwriteFile(calls, target, bytes);
    }
    WriteResult result = failed ? saveFailed(failed) : WriteResult();
    result.ok = !failed;
    if (replacement.isDone()) {
        result.onDisk = WriteResult::OnDisk::New;
        result.stamp = FileStamp::of(target, bytes);
    }
    return result;
}

WriteResult saveWithToolkit(const QString &target, const QByteArray &bytes)
{
    QSaveFile file(target);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!written || !file.commit())
        return saveFailed(problemOf(file.error()), file.errorString());
    WriteResult result;
    result.ok = true;
    result.onDisk = WriteResult::OnDisk::New;
    result.stamp = FileStamp::of(target, bytes);
    return result;
}

WriteResult save(const QString &target, const QByteArray &bytes, const QString &attributesOf)
{
    const QFileInfo info(target);
    if (info.fileName().isEmpty())
        return saveFailed(SaveProblem::PathGone, QStringLiteral("No file name"));
    if (info.exists() && !info.isFile())
        return saveFailed(SaveProblem::NotAFile, QStringLiteral("Not a file"));
    FileCalls *calls = FileCalls::current();
    return calls ? saveWithCalls(*calls, target, bytes, attributesOf) : saveWithToolkit(target, bytes);
}

} // namespace

WriteResult writeFileSafely(const QString &path, const QByteArray &bytes, const QString &attributesOf)
{
    const QString target = linkTarget(path);
    WriteResult result = save(target, bytes, attributesOf);
    if (!result.ok)
        qCWarning(logFile) << "Cannot write" << target << result.error;
    return result;
}

void removeAbandonedTemporaryFiles(const QString &path)
{
    if (FileCalls *calls = FileCalls::current())
        FileReplacement::removeAbandoned(*calls, QFileInfo(linkTarget(path)).path());
}

} // namespace brinemark
