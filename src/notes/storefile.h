// SPDX-License-Identifier: MIT
#pragma once

#include "notes/storeerror.h"
#include "notes/storetrouble.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <string>

namespace SQLite {
class Database;
}

namespace vesk {

/// The store's file as the file system sees it: whether it may be opened at all, its folder, its permissions,
/// and the creation of a new one. Internal to this layer. Fallible functions return the reason, or an empty
/// error on success; only those that use SQLite throw whatever SQLiteCpp throws.
class StoreFile final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::StoreFile)

public:
    explicit StoreFile(const QString &path);

    /// The name of the write-ahead log that SQLite keeps beside a database.
    [[nodiscard]] static QString journalOf(const QString &path);
    /// The name of the rollback journal that SQLite keeps there when it does not use a write-ahead log.
    [[nodiscard]] static QString rollbackJournalOf(const QString &path);
    static void removeWithCompanions(const QString &path);
    static void removeCompanions(const QString &path);
    /// Creates an empty file that only the user can access. Returns false, with `errno` set, if it exists or
    /// cannot be created.
    [[nodiscard]] static bool makePrivate(const QString &path);
    /// Flushes a file, or the names in a folder, to the disk.
    [[nodiscard]] static bool sync(const QString &path);

    /// Creates a missing folder, readable only by the user. Ignores failure, which shows when the file is
    /// created.
    void makeFolder() const;

    enum class Access {
        Read,
        ReadAndWrite,
    };
    /// Why this file cannot be used, as far as can be seen from outside. Changes nothing.
    [[nodiscard]] StoreError obstacle(Access access = Access::ReadAndWrite) const;
    /// Why the contents cannot be used, as far as the main file alone shows. Takes no lock, creates no file
    /// and leaves the journal alone.
    [[nodiscard]] StoreError contentsObstacle() const;

    /// Whether the file has no contents yet. A crash at the first start may leave an empty file.
    [[nodiscard]] bool isEmpty() const;
    /// Whether there are changes that SQLite has not yet moved from the write-ahead log into the file.
    [[nodiscard]] bool hasJournal() const;
    /// Whether a change may be half done; SQLite completes or undoes it when it opens the file.
    [[nodiscard]] bool isUnsettled() const;

    /// Creates an empty store if the file does not exist or is empty.
    [[nodiscard]] StoreError create() const;
    /// Creates a store with what `fill` writes, which must throw on failure. The file appears in its place
    /// complete or not at all, and never replaces another. Returns the `errno` of the step that failed; 0 on
    /// success.
    [[nodiscard]] int createFilled(const std::function<void(SQLite::Database &)> &fill) const;
    /// Makes the file and its companions accessible only to the user.
    void restrictAccess() const;

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] QString folder() const;
    /// For SQLite.
    [[nodiscard]] std::string nativePath() const;
    /// For SQLite, to read the file without locks, ignoring the journal and creating no files.
    [[nodiscard]] std::string immutableAddress() const;
    /// One sentence about what kept the file from being opened.
    [[nodiscard]] StoreError describe(const StoreTrouble &trouble) const;
    [[nodiscard]] StoreError damaged() const;
    [[nodiscard]] StoreError newerVersion(int version) const;

private:
    /// Creates a complete store at `unfinished`. Returns false, with `errno` set, if the file cannot be
    /// created.
    [[nodiscard]] static bool makeUnfinished(const QString &unfinished,
                                             const std::function<void(SQLite::Database &)> &fill);
    [[nodiscard]] QString unfinishedPath() const;

    /// Absolute, with links followed if the file exists.
    QString m_path;
};

} // namespace vesk
