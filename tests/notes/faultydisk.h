// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <sqlite3.h>

#include <limits>
#include <map>
#include <random>
#include <vector>

namespace vesk {

/// What SQLite uses as the disk while this object lives: the real one, except for the faults that a test
/// orders and for the effects of a power failure on unsynced writes. Only affects the files of one folder.
class FaultyDisk final
{
public:
    static constexpr qint64 kForever = std::numeric_limits<qint64>::max() / 2;

    /// Which steps fail, and how. A step is an open, write, truncate, sync or removal.
    struct Plan
    {
        qint64 first = kForever;
        qint64 count = kForever;
        /// For a write or truncation, such as `SQLITE_FULL`.
        int code = SQLITE_IOERR_WRITE;
        /// Whether a failing write writes its first half.
        bool tears = false;
        /// Whether reading the file is a step too.
        bool readsToo = false;
    };

    /// What a crash leaves of the writes since the last sync.
    enum class Loss {
        None,
        Random,
        All
    };

    FaultyDisk();
    ~FaultyDisk();
    Q_DISABLE_COPY_MOVE(FaultyDisk)

    /// Restarts counting steps at 0.
    void follow(const Plan &plan);
    /// Makes all steps fail from now on.
    void die() { follow({.first = 0}); }
    [[nodiscard]] qint64 steps() const { return m_steps; }

    /// Brings the folder's files into a state in which a power failure might leave them. No connection may be
    /// open.
    void cutPower(const QString &folder, Loss loss, std::mt19937 &random);

private:
    using Inode = quint64;

    /// A change that has not been synced; a truncation has no bytes.
    struct Change
    {
        qint64 offset;
        QByteArray bytes;
    };
    struct Medium
    {
        /// What certainly exists after a power failure.
        QByteArray durable;
        std::vector<Change> changes;
    };
    /// What SQLite sees as an open file; the real one is behind it.
    struct File
    {
        sqlite3_file base;
        FaultyDisk *disk;
        Inode inode;
    };

    [[nodiscard]] static sqlite3_file *real(sqlite3_file *file);
    [[nodiscard]] static sqlite3_io_methods methods();
    /// Forwards one of the methods to the real disk's.
    template <auto kMethod>
    static void forward(sqlite3_io_methods &methods);
    static void apply(QByteArray &contents, const Change &change);

    /// Counts a step; returns whether it fails.
    [[nodiscard]] bool isNextFailing();
    [[nodiscard]] int open(sqlite3_filename name, sqlite3_file *file, int flags, int *outFlags);
    [[nodiscard]] int remove(const char *name, int syncsFolder);
    [[nodiscard]] static int read(sqlite3_file *file, void *bytes, int size, sqlite3_int64 offset);
    [[nodiscard]] static int write(sqlite3_file *file, const void *bytes, int size, sqlite3_int64 offset);
    [[nodiscard]] static int truncate(sqlite3_file *file, sqlite3_int64 size);
    [[nodiscard]] static int sync(sqlite3_file *file, int flags);

    sqlite3_vfs *m_real;
    sqlite3_vfs m_vfs;
    const sqlite3_io_methods m_methods = methods();
    std::map<Inode, Medium> m_media;
    Plan m_plan;
    qint64 m_steps = 0;
};

} // namespace vesk
