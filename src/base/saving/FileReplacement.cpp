// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/FileReplacement.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cerrno>

namespace brinemark
{

namespace
{

// The name of the target is no part of it, since it may already be as long as the file system allows.
constexpr QLatin1String newFilePrefix(".brinemark-saving-");

QString newFileName()
{
    return newFilePrefix + QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), 16, 16, QChar(u'0'));
}

bool isNewFileName(const QString &name)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(newFilePrefix) + QStringLiteral("[0-9a-f]{16}")));
    return pattern.match(name).hasMatch();
}

} // namespace

FileReplacement::FileReplacement(FileCalls &calls, const QString &target)
    : m_calls(calls)
    , m_target(target)
    , m_folder(QFileInfo(target).path())
    , m_file(calls)
    , m_lock(calls)
{
}

FileReplacement::~FileReplacement()
{
    discard();
}

void FileReplacement::discard()
{
    if (!m_path.isEmpty() && !m_done)
        static_cast<void>(m_calls.remove(m_path));
    m_path.clear();
}

FailedCall FileReplacement::write(const QByteArray &bytes, const QString &attributesOf)
{
    using Mode = FileCalls::Mode;
    if (const FailedCall failed = create(attributesOf.isEmpty() ? Mode::Create : Mode::CreatePrivate))
        return failed;
    if (!attributesOf.isEmpty())
        m_calls.copyAttributes(attributesOf, m_file.descriptor);
    CallSeries calls;
    if (!calls("write", writeWhole(m_calls, m_file.descriptor, bytes)) ||
        !calls("fsync", m_calls.sync(m_file.descriptor)) || !calls("close", m_file.close()) ||
        !calls(renameCall, renameToTarget()))
        return calls.failed;
    m_done = true;
    calls("fsync of the folder", m_calls.syncFolder(m_folder));
    return calls.failed;
}

FailedCall FileReplacement::create(FileCalls::Mode mode)
{
    constexpr int mostTries = 100;
    CallSeries calls;
    for (int tries = 0; tries < mostTries; ++tries) {
        m_path = m_folder + u'/' + newFileName();
        if (!calls(createCall, m_calls.open(m_path, mode, m_file.descriptor))) {
            m_path.clear();
            if (calls.failed.error == EEXIST)
                continue;
            return calls.failed;
        }
        if (isLockedAndThere()) {
            calls("dup", m_calls.duplicate(m_file.descriptor, m_lock.descriptor));
            return calls.failed;
        }
        static_cast<void>(m_file.close());
        discard();
    }
    return {createCall, EEXIST};
}

/// Between its making and its locking, another process may take the new file for an abandoned one and remove it.
bool FileReplacement::isLockedAndThere()
{
    FileState state;
    // Other errors come from file systems without locks, where no process removes another one's file.
    return m_calls.lock(m_file.descriptor) != EWOULDBLOCK &&
           (m_calls.state(m_file.descriptor, state) != 0 || state.links > 0);
}

int FileReplacement::renameToTarget()
{
    const int error = m_calls.rename(m_path, m_target);
    // A network file system may report an error for a rename that has taken place.
    FileState written;
    FileState target;
    const bool known = error != 0 && m_calls.state(m_lock.descriptor, written) == 0;
    return known && m_calls.state(m_target, target) == 0 && target.isSameFile(written) ? 0 : error;
}

void FileReplacement::removeAbandoned(FileCalls &calls, const QString &folder)
{
    const QDir::Filters filters = QDir::Files | QDir::Hidden | QDir::NoSymLinks;
    for (const QString &name : QDir(folder).entryList({newFilePrefix + QStringLiteral("*")}, filters)) {
        const QString path = folder + u'/' + name;
        FileState state;
        OpenFile file(calls);
        if (isNewFileName(name) && calls.state(path, state) == 0 && state.isRegular && state.isOwn &&
            state.links == 1 && calls.open(path, FileCalls::Mode::Overwrite, file.descriptor) == 0 &&
            calls.lock(file.descriptor) == 0)
            static_cast<void>(calls.remove(path));
    }
}

} // namespace brinemark
