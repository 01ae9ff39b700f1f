// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/FileCalls.h"

#include <QByteArray>

#include <cerrno>

namespace brinemark
{

namespace
{

FileCalls *&callsInUse()
{
    static FileCalls *calls = FileCalls::system();
    return calls;
}

} // namespace

FileCalls *FileCalls::current()
{
    return callsInUse();
}

FileCalls *FileCalls::setCurrent(FileCalls *calls)
{
    return std::exchange(callsInUse(), calls);
}

#ifndef Q_OS_UNIX
FileCalls *FileCalls::system()
{
    return nullptr;
}
#endif

int writeWhole(FileCalls &calls, int file, const QByteArray &bytes)
{
    for (qint64 done = 0; done < bytes.size();) {
        qint64 written = 0;
        if (const int error = calls.write(file, bytes.constData() + done, bytes.size() - done, written))
            return error;
        if (written <= 0)
            return EIO; // trying again might never end
        done += written;
    }
    return 0;
}

FailedCall readWhole(FileCalls &calls, const QString &path, QByteArray &bytes)
{
    constexpr qint64 blockSize = 1 << 20;
    OpenFile file(calls);
    CallSeries done;
    if (!done("open", calls.open(path, FileCalls::Mode::Read, file.descriptor)))
        return done.failed;
    bytes.clear();
    qint64 got = 0;
    do {
        const qint64 before = bytes.size();
        bytes.resize(before + blockSize);
        if (!done("read", calls.read(file.descriptor, bytes.data() + before, blockSize, got)))
            return done.failed;
        bytes.resize(before + got);
    } while (got > 0);
    return {};
}

} // namespace brinemark
