// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>

namespace brinemark::test
{

/// During its lifetime no file can grow beyond `room` bytes, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t room = 64 * 1024)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = room;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

} // namespace brinemark::test
#endif
