// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/KeptCopies.h"

#include "base/Clock.h"
#include "base/Product.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>

namespace brinemark
{

namespace
{

constexpr QLatin1String unfinishedPrefix("unfinished ");

QString stateFolder()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // The toolkit knows this folder from version 6.7 on.
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.local/state");
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#endif
}

/// Removes the mark of an unfinished copy from its name; returns the new path, or the old one if that fails.
QString finishedPath(FileCalls &calls, const QString &path)
{
    const QFileInfo info(path);
    const QString finished = info.path() + u'/' + info.fileName().mid(unfinishedPrefix.size());
    if (QFileInfo::exists(finished) || calls.rename(path, finished) != 0)
        return path;
    static_cast<void>(calls.syncFolder(info.path()));
    return finished;
}

} // namespace

QString keptCopiesFolder()
{
    return stateFolder() + u'/' + QLatin1String(product::name) + QStringLiteral("/kept-copies");
}

KeptCopy::KeptCopy(FileCalls &calls)
    : m_calls(calls)
    , m_file(calls)
{
}

KeptCopy::~KeptCopy()
{
    if (!m_path.isEmpty())
        static_cast<void>(m_calls.remove(m_path));
}

FailedCall KeptCopy::make(const QString &fileName, const QByteArray &bytes)
{
    constexpr qsizetype longest = 60; // characters of at most three bytes; file systems allow 255 bytes
    const QString folder = keptCopiesFolder();
    errno = 0;
    if (!QDir().mkpath(folder))
        return {"mkdir", errno != 0 ? errno : EACCES};
    const QString start =
        folder + u'/' + unfinishedPrefix + clock::now().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss.zzz "));
    const QString path = start + fileName.right(longest);

    CallSeries calls;
    if (!calls("create", m_calls.open(path, FileCalls::Mode::CreatePrivate, m_file.descriptor)))
        return calls.failed;
    m_path = path;
    static_cast<void>(m_calls.lock(m_file.descriptor)); // some file systems have no locks
    if (!calls("write", writeWhole(m_calls, m_file.descriptor, bytes)) ||
        !calls("fsync", m_calls.sync(m_file.descriptor)) || !calls("fsync of the folder", m_calls.syncFolder(folder)))
        return calls.failed;
    QByteArray written;
    if (const FailedCall failed = readWhole(m_calls, m_path, written))
        return failed;
    calls("comparison", written == bytes ? 0 : EIO);
    return calls.failed;
}

QString KeptCopy::keep()
{
    return finishedPath(m_calls, std::exchange(m_path, {}));
}

QStringList takeAbandonedCopies()
{
    QStringList found;
    FileCalls *calls = FileCalls::current();
    if (!calls)
        return found;
    const QDir folder(keptCopiesFolder());
    const QStringList names = folder.entryList({unfinishedPrefix + QStringLiteral("*")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString path = folder.filePath(name);
        OpenFile file(*calls);
        if (calls->open(path, FileCalls::Mode::Overwrite, file.descriptor) == 0 &&
            calls->lock(file.descriptor) != EWOULDBLOCK)
            found << finishedPath(*calls, path);
    }
    return found;
}

} // namespace brinemark
