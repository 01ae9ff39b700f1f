// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/FileCalls.h"

#ifdef Q_OS_UNIX

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#elif defined(Q_OS_MACOS)
#include <copyfile.h>
#endif

namespace brinemark
{

namespace
{

/// Calls again as long as a signal interrupts; returns 0 or the error number. `result` is what the call returned.
template <class Call, class Result>
int uninterrupted(Result &result, Call call)
{
    do
        result = call();
    while (result < 0 && errno == EINTR);
    return result < 0 ? errno : 0;
}

template <class Call>
int uninterrupted(Call call)
{
    int result = 0;
    return uninterrupted(result, call);
}

int errorOf(int result)
{
    return result < 0 ? errno : 0;
}

int flagsOf(FileCalls::Mode mode)
{
    switch (mode) {
    case FileCalls::Mode::Read:
        break;
    case FileCalls::Mode::Overwrite:
        // Not blocking: the name of a pipe must not stop the program.
        return O_RDWR | O_NOFOLLOW | O_NONBLOCK;
    case FileCalls::Mode::Create:
    case FileCalls::Mode::CreatePrivate:
        return O_RDWR | O_CREAT | O_EXCL;
    }
    return O_RDONLY | O_NONBLOCK;
}

FileState stateOf(const struct stat &info)
{
    return {S_ISREG(info.st_mode), quint64(info.st_dev), quint64(info.st_ino), quint32(info.st_nlink),
            info.st_uid == geteuid()};
}

void copyOwnerAndPermissions(const struct stat &from, int to)
{
    mode_t permissions = from.st_mode & 0777U;
    // The owner can be kept by an administrator only, and a group by those who belong to it.
    if (fchown(to, from.st_uid, from.st_gid) != 0 && fchown(to, uid_t(-1), from.st_gid) != 0)
        permissions &= ~mode_t(070) | ((permissions & 07U) << 3U);
    static_cast<void>(fchmod(to, permissions));
}

void copyExtendedAttributes(int from, int to)
{
#ifdef Q_OS_LINUX
    QByteArray names(flistxattr(from, nullptr, 0) + 1, '\0');
    const auto size = flistxattr(from, names.data(), size_t(names.size()));
    for (const QByteArray &name : names.left(qMax<qsizetype>(size, 0)).split('\0')) {
        // Not the signatures and capabilities, which belong to the old content.
        if (!name.startsWith("user.") && name != "system.posix_acl_access" && name != "security.selinux")
            continue;
        QByteArray value(fgetxattr(from, name.constData(), nullptr, 0) + 1, '\0');
        const auto length = fgetxattr(from, name.constData(), value.data(), size_t(value.size()));
        if (length >= 0)
            static_cast<void>(fsetxattr(to, name.constData(), value.constData(), size_t(length), 0));
    }
#elif defined(Q_OS_MACOS)
    static_cast<void>(fcopyfile(from, to, nullptr, COPYFILE_ACL | COPYFILE_XATTR));
#else
    Q_UNUSED(from)
    Q_UNUSED(to)
#endif
}

class PosixFileCalls final : public FileCalls
{
public:
    int open(const QString &path, Mode mode, int &file) override
    {
        const QByteArray name = QFile::encodeName(path);
        const mode_t permissions = mode == Mode::CreatePrivate ? 0600 : 0666;
        return uninterrupted(file, [&] { return ::open(name.constData(), flagsOf(mode) | O_CLOEXEC, permissions); });
    }

    int write(int file, const char *bytes, qint64 size, qint64 &written) override
    {
        return uninterrupted(written, [&] { return ::write(file, bytes, size_t(size)); });
    }

    int read(int file, char *bytes, qint64 size, qint64 &got) override
    {
        return uninterrupted(got, [&] { return ::read(file, bytes, size_t(size)); });
    }

    int truncate(int file, qint64 size) override
    {
        return uninterrupted([&] { return ftruncate(file, size); });
    }

    int sync(int file) override
    {
#ifdef F_FULLFSYNC
        // On macOS fsync() leaves the content in the disk's own cache.
        if (fcntl(file, F_FULLFSYNC) == 0)
            return 0;
#endif
        return uninterrupted([&] { return fsync(file); });
    }

    int close(int file) override
    {
        // Not called again after an interruption: the descriptor may be closed and in use for another file.
        const int error = errorOf(::close(file));
        return error == EINTR ? 0 : error;
    }

    int rename(const QString &from, const QString &to) override
    {
        return errorOf(::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()));
    }

    int remove(const QString &path) override
    {
        return errorOf(unlink(QFile::encodeName(path).constData()));
    }

    int syncFolder(const QString &folder) override
    {
        const QByteArray name = QFile::encodeName(folder);
        int opened = -1;
        if (const int error =
                uninterrupted(opened, [&] { return ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }))
            return error == EACCES ? 0 : error; // a folder that may be written but not read cannot be synced
        const int error = uninterrupted([&] { return fsync(opened); });
        static_cast<void>(::close(opened));
        return error == EINVAL || error == ENOTSUP ? 0 : error; // file systems without such a call
    }

    int lock(int file) override
    {
        return uninterrupted([&] { return flock(file, LOCK_EX | LOCK_NB); });
    }

    int duplicate(int file, int &copy) override
    {
        copy = fcntl(file, F_DUPFD_CLOEXEC, 0);
        return errorOf(copy);
    }

    int state(const QString &path, FileState &state) override
    {
        struct stat info {
        };
        const int error = errorOf(lstat(QFile::encodeName(path).constData(), &info));
        state = stateOf(info);
        return error;
    }

    int state(int file, FileState &state) override
    {
        struct stat info {
        };
        const int error = errorOf(fstat(file, &info));
        state = stateOf(info);
        return error;
    }

    int mayWrite(const QString &path) override
    {
        return errorOf(faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS));
    }

    void copyAttributes(const QString &from, int to) override
    {
        struct stat info {
        };
        if (stat(QFile::encodeName(from).constData(), &info) != 0)
            return;
        copyOwnerAndPermissions(info, to);
        OpenFile source(*this);
        if (open(from, Mode::Read, source.descriptor) == 0)
            copyExtendedAttributes(source.descriptor, to);
    }
};

} // namespace

FileCalls *FileCalls::system()
{
    static PosixFileCalls calls;
    return &calls;
}

} // namespace brinemark

#endif
