// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/FileStamp.h"

#include <QFile>
#include <QFileInfo>
#include <QHashFunctions>

namespace brinemark
{

namespace
{

/// Not a cryptographic hash: it only has to reveal that an editor or a synchronising service changed the file, and must
/// not delay the opening of a file of 100 MB.
QByteArray fastHash(const QByteArray &content)
{
    constexpr size_t seed = 0x6272696e; // not 0: qHashBits is slower with a seed of 0
    const size_t hash = qHashBits(content.constData(), size_t(content.size()), seed);
    return QByteArray(reinterpret_cast<const char *>(&hash), sizeof hash);
}

FileStamp stampOf(const QFileInfo &info)
{
    return info.isFile() ? FileStamp{info.size(), info.lastModified().toUTC(), {}} : FileStamp{};
}

} // namespace

FileStamp FileStamp::of(const QString &path)
{
    return readFile(path).stamp;
}

FileStamp FileStamp::of(const QString &path, const QByteArray &content)
{
    FileStamp stamp = stampOf(QFileInfo(path));
    if (!stamp.isKnown())
        return stamp;
    // The content's size, not the file's: another program may already have changed the file.
    stamp.size = content.size();
    stamp.hash = fastHash(content);
    return stamp;
}

bool changedOnDisk(const QString &path, const FileStamp &lastKnown)
{
    const FileStamp present = stampOf(QFileInfo(path));
    if (!present.isKnown())
        return false;
    if (present.size != lastKnown.size)
        return true;
    if (present.modified == lastKnown.modified)
        return false;
    return lastKnown.hash.isEmpty() || FileStamp::of(path).hash != lastKnown.hash;
}

FileContent readFile(const QString &path)
{
    FileContent content;
    // Regular files only: reading a pipe might never end.
    if (!QFileInfo(path).isFile()) {
        content.error = QStringLiteral("No such file");
        return content;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        content.error = file.errorString();
        return content;
    }
    // Take the time before reading, so that a later comparison detects a change made during the read.
    const QDateTime modified = file.fileTime(QFileDevice::FileModificationTime).toUTC();
    content.bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        content.error = file.errorString();
        content.bytes.clear();
        return content;
    }
    content.ok = true;
    content.stamp = {content.bytes.size(), modified, fastHash(content.bytes)};
    return content;
}

} // namespace brinemark
