// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace vesk {

/// The store as a file among files: whether it may be opened at all, its folder, its access rights,
/// and how a new one is made. Internal to this layer. What fails here returns one sentence that says
/// why, and an empty one for success; only what uses SQLite throws what SQLiteCpp throws.
class StoreFile final
{
public:
    explicit StoreFile(const QString &path);

    /// Makes a missing folder, readable by its user only. Does nothing about a failure, which shows
    /// when the file is made.
    void makeFolder() const;

    /// Why this file cannot be used, as far as that shows from outside. Changes nothing.
    [[nodiscard]] QString obstacle() const;
    /// Why the contents cannot be used, as far as the main file alone shows. Changes nothing: takes
    /// no lock, makes no file, leaves the journal alone.
    [[nodiscard]] QString contentsObstacle() const;

    /// Whether there is nothing in it yet. A crash at the first start may leave an empty file.
    [[nodiscard]] bool isEmpty() const;
    /// Whether there are changes that SQLite has not yet moved from the journal into the file.
    [[nodiscard]] bool hasJournal() const;

    /// Makes an empty store. It comes into its place complete or not at all.
    [[nodiscard]] QString create() const;
    /// Lets nobody but the user read the file and its companions.
    void restrictAccess() const;

    /// For SQLite.
    [[nodiscard]] std::string nativePath() const;
    /// One sentence for the failure that SQLite told of by this result code.
    [[nodiscard]] QString describe(int sqliteCode, const char *message) const;
    [[nodiscard]] QString damaged() const;
    [[nodiscard]] QString newerVersion(int version) const;

private:
    [[nodiscard]] QString sentence(const QString &predicate) const;

    /// Absolute, with links followed if the file is there.
    QString m_path;
};

} // namespace vesk
