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

/// The store as a file among files: whether it may be opened at all, its folder, its access rights,
/// and how a new one is made. Internal to this layer. What fails here returns why, and an empty error
/// for success; only what uses SQLite throws what SQLiteCpp throws.
class StoreFile final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::StoreFile)

public:
    explicit StoreFile(const QString &path);

    /// The name of the write-ahead log that SQLite keeps beside a database.
    [[nodiscard]] static QString journalOf(const QString &path);
    /// The name of the journal that it keeps there instead where it does without the log.
    [[nodiscard]] static QString rollbackJournalOf(const QString &path);
    static void removeWithCompanions(const QString &path);
    static void removeCompanions(const QString &path);
    /// Makes an empty file for its user only; false, with `errno` set, if it is there or cannot be made.
    [[nodiscard]] static bool makePrivate(const QString &path);
    /// Brings a file, or the names in a folder, to the disk.
    [[nodiscard]] static bool sync(const QString &path);

    /// Makes a missing folder, readable by its user only. Does nothing about a failure, which shows
    /// when the file is made.
    void makeFolder() const;

    enum class Access {
        Read,
        ReadAndWrite,
    };
    /// Why this file cannot be used, as far as that shows from outside. Changes nothing.
    [[nodiscard]] StoreError obstacle(Access access = Access::ReadAndWrite) const;
    /// Why the contents cannot be used, as far as the main file alone shows. Changes nothing: takes
    /// no lock, makes no file, leaves the journal alone.
    [[nodiscard]] StoreError contentsObstacle() const;

    /// Whether there is nothing in it yet. A crash at the first start may leave an empty file.
    [[nodiscard]] bool isEmpty() const;
    /// Whether there are changes that SQLite has not yet moved from the write-ahead log into the file.
    [[nodiscard]] bool hasJournal() const;
    /// Whether a change may be half done, to be completed or undone when SQLite opens the file.
    [[nodiscard]] bool isUnsettled() const;

    /// Makes an empty store where there is no file or an empty one.
    [[nodiscard]] StoreError create() const;
    /// Makes a store with what `fill` writes, which must throw if it cannot. It comes into its place complete
    /// or not at all, and replaces no file. Returns the `errno` of the step that failed; 0 if none did.
    [[nodiscard]] int createFilled(const std::function<void(SQLite::Database &)> &fill) const;
    /// Lets nobody but the user read the file and its companions.
    void restrictAccess() const;

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] QString folder() const;
    /// For SQLite.
    [[nodiscard]] std::string nativePath() const;
    /// For SQLite, to read the file without locks and without regard to the journal, and to make no file.
    [[nodiscard]] std::string immutableAddress() const;
    /// One sentence for what kept the file from being opened.
    [[nodiscard]] StoreError describe(const StoreTrouble &trouble) const;
    [[nodiscard]] StoreError damaged() const;
    [[nodiscard]] StoreError newerVersion(int version) const;

private:
    /// Makes a complete store at `unfinished`. False, with `errno` set, if the file cannot be made.
    [[nodiscard]] static bool makeUnfinished(const QString &unfinished,
                                             const std::function<void(SQLite::Database &)> &fill);
    [[nodiscard]] QString unfinishedPath() const;

    /// Absolute, with links followed if the file is there.
    QString m_path;
};

} // namespace vesk
