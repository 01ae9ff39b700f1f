// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <utility>

namespace brinemark
{

/// What the system knows about a file.
struct FileState {
    bool isRegular = false;
    quint64 device = 0; ///< with `number` it identifies the file, whatever its name is
    quint64 number = 0;
    quint32 links = 0;  ///< names of the file; 0 once the last one is removed
    bool isOwn = false; ///< belongs to the user who runs the program

    [[nodiscard]] bool isSameFile(const FileState &other) const
    {
        return device == other.device && number == other.number;
    }
};

/// The system calls by which files are saved, so that tests can make each of them fail. Every call that returns an int
/// returns 0, or the system's error number; `file` is an open file's descriptor.
class FileCalls
{
public:
    /// The calls in use. Null where the platform lacks them: files are then saved by the toolkit's class, which does
    /// not check all of its calls.
    [[nodiscard]] static FileCalls *current();
    /// Replaces the calls, or with null removes them. Returns the previous ones.
    static FileCalls *setCurrent(FileCalls *calls);
    /// The platform's own calls; null where it lacks them.
    [[nodiscard]] static FileCalls *system();

    virtual ~FileCalls() = default;

    enum class Mode {
        Read,
        Overwrite,     ///< an existing file, whose content stays until it is written over
        Create,        ///< a new file with the usual permissions
        CreatePrivate, ///< a new file that only its owner can read and write
    };
    [[nodiscard]] virtual int open(const QString &path, Mode mode, int &file) = 0;
    /// Writes at least one byte, but possibly not all of them.
    [[nodiscard]] virtual int write(int file, const char *bytes, qint64 size, qint64 &written) = 0;
    [[nodiscard]] virtual int read(int file, char *bytes, qint64 size, qint64 &got) = 0; ///< `got` is 0 at the end
    [[nodiscard]] virtual int truncate(int file, qint64 size) = 0;
    [[nodiscard]] virtual int sync(int file) = 0;  ///< returns once the content is on the disk
    [[nodiscard]] virtual int close(int file) = 0; ///< the descriptor is invalid afterwards, whatever is returned
    [[nodiscard]] virtual int rename(const QString &from, const QString &to) = 0; ///< replaces `to` in one step
    [[nodiscard]] virtual int remove(const QString &path) = 0;
    [[nodiscard]] virtual int syncFolder(const QString &folder) = 0; ///< returns once the names are on the disk

    /// Takes the lock of the file without waiting. All copies of a descriptor share the lock; it ends when the last one
    /// is closed, also when the process is killed. EWOULDBLOCK: another descriptor has it.
    [[nodiscard]] virtual int lock(int file) = 0;
    [[nodiscard]] virtual int duplicate(int file, int &copy) = 0;

    [[nodiscard]] virtual int state(const QString &path, FileState &state) = 0; ///< of a link itself, not its target
    [[nodiscard]] virtual int state(int file, FileState &state) = 0;
    [[nodiscard]] virtual int mayWrite(const QString &path) = 0; ///< 0: the user has permission to write to the file

    /// Gives an open file the owner, group, permissions and extended attributes of another one, each where the system
    /// allows it. Without the group, the file is no more open to its new group than to everybody.
    virtual void copyAttributes(const QString &from, int to) = 0;
};

/// The call that ended a series of calls.
struct FailedCall {
    const char *call = "";
    int error = 0;

    explicit operator bool() const { return error != 0; }
};

/// Notes the first call of a series that fails: `calls("write", ...) && calls("fsync", ...)`.
struct CallSeries {
    FailedCall failed;

    bool operator()(const char *call, int error)
    {
        failed = {call, error};
        return error == 0;
    }
};

[[nodiscard]] int writeWhole(FileCalls &calls, int file, const QByteArray &bytes);
/// Opens a file, reads all of it and closes it.
[[nodiscard]] FailedCall readWhole(FileCalls &calls, const QString &path, QByteArray &bytes);

/// An open descriptor that is closed at the end of its life at the latest.
class OpenFile
{
public:
    explicit OpenFile(FileCalls &calls)
        : m_calls(calls)
    {
    }
    ~OpenFile()
    {
        if (descriptor >= 0)
            static_cast<void>(m_calls.close(descriptor));
    }
    Q_DISABLE_COPY_MOVE(OpenFile)

    [[nodiscard]] int close() { return m_calls.close(std::exchange(descriptor, -1)); }

    int descriptor = -1;

private:
    FileCalls &m_calls;
};

} // namespace brinemark
