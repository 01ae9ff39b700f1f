// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/FileCalls.h"

#include <QFileInfo>
#include <QString>

#include <cerrno>

namespace brinemark::test
{

/// Which of the system's calls fails: the `nth` of the name "create", "overwrite", "open", "write", "read", "truncate",
/// "fsync", "close", "rename" or "folder".
struct FailingCall {
    QString name = {};
    int nth = 1;
    int error = EIO;
    bool onward = false;       ///< all later calls of this name fail as well
    bool takesPlace = false;   ///< the call does its work before it reports the error
    QString closedFolder = {}; ///< no file can be made in this folder
};

/// During its lifetime files are saved by the system's calls, of which the chosen one fails. Writes take one to five
/// bytes at a time, so that there are many of them.
class FailingFileCalls final : public FileCalls
{
public:
    explicit FailingFileCalls(FailingCall failure)
        : m_failure(std::move(failure))
        , m_before(setCurrent(this))
    {
    }
    ~FailingFileCalls() override { setCurrent(m_before); }
    Q_DISABLE_COPY_MOVE(FailingFileCalls)

    [[nodiscard]] bool hasFailed() const { return m_failed; }

    int open(const QString &path, Mode mode, int &file) override
    {
        const bool creates = mode == Mode::Create || mode == Mode::CreatePrivate;
        if (creates && QFileInfo(path).path() == m_failure.closedFolder)
            return EACCES;
        return call(creates                   ? "create"
                    : mode == Mode::Overwrite ? "overwrite"
                                              : "open",
                    [&] { return real().open(path, mode, file); });
    }
    int write(int file, const char *bytes, qint64 size, qint64 &written) override
    {
        const qint64 part = qMin<qint64>(size, 1 + m_writes++ % 5);
        return call("write", [&] { return real().write(file, bytes, part, written); });
    }
    int read(int file, char *bytes, qint64 size, qint64 &got) override
    {
        return call("read", [&] { return real().read(file, bytes, size, got); });
    }
    int truncate(int file, qint64 size) override
    {
        return call("truncate", [&] { return real().truncate(file, size); });
    }
    int sync(int file) override
    {
        return call("fsync", [&] { return real().sync(file); });
    }
    int close(int file) override // always closes, as the system does
    {
        const int error = real().close(file);
        return call("close", [&] { return error; });
    }
    int rename(const QString &from, const QString &to) override
    {
        return call("rename", [&] { return real().rename(from, to); });
    }
    int syncFolder(const QString &folder) override
    {
        return call("folder", [&] { return real().syncFolder(folder); });
    }
    int remove(const QString &path) override { return real().remove(path); }
    int lock(int file) override { return real().lock(file); }
    int duplicate(int file, int &copy) override { return real().duplicate(file, copy); }
    int state(const QString &path, FileState &state) override { return real().state(path, state); }
    int state(int file, FileState &state) override { return real().state(file, state); }
    int mayWrite(const QString &path) override { return real().mayWrite(path); }
    void copyAttributes(const QString &from, int to) override { real().copyAttributes(from, to); }

private:
    static FileCalls &real() { return *system(); }

    template <class Work>
    int call(const char *name, Work work)
    {
        const bool fails = m_failure.name == QLatin1String(name) &&
                           (++m_calls == m_failure.nth || (m_failure.onward && m_calls > m_failure.nth));
        const int error = !fails || m_failure.takesPlace ? work() : 0;
        m_failed |= fails;
        return fails ? m_failure.error : error;
    }

    FailingCall m_failure;
    FileCalls *m_before;
    int m_calls = 0;
    int m_writes = 0;
    bool m_failed = false;
};

} // namespace brinemark::test
