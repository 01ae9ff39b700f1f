// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStandardPaths>
#include <QTemporaryDir>

namespace brinemark::test
{

/// A separate home for one test program: preferences, caches and application data go to a folder that is removed at
/// the end. Made before the application object, which looks up these folders.
class TestHome
{
public:
    TestHome()
    {
        s_current = this;
        qputenv("HOME", m_folder.path().toLocal8Bit());
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
            qputenv(variable, m_folder.filePath(QLatin1String(variable)).toLocal8Bit());
    }

    ~TestHome() { s_current = nullptr; }
    TestHome(const TestHome &) = delete;
    TestHome &operator=(const TestHome &) = delete;

    [[nodiscard]] static const TestHome &current() { return *s_current; } ///< of the test that runs

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    static inline const TestHome *s_current = nullptr;
    QTemporaryDir m_folder;
};

} // namespace brinemark::test
