// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace vesk {

/// The copies of a store that lie beside it: `Notes.copy` is the newest, `Notes.copy.1` the one before it,
/// and so on. Each is an ordinary store in a single file. Internal to this layer.
class StoreGenerations final
{
public:
    /// How many copies are kept, not counting those that hold far more than the store does now.
    static constexpr qsizetype kCount = 3;

    /// `store` is the path of the store that is copied.
    explicit StoreGenerations(const QString &store);

    /// Whether a store with `records` records has lost so many of `before` that this is more likely an
    /// accident than the user's doing. Deleting half of the notes is normal use.
    [[nodiscard]] static bool isFarFewer(qint64 records, qint64 before);

    /// The path of the newest copy, whether or not it exists.
    [[nodiscard]] const QString &newest() const { return m_newest; }
    /// The paths of the copies that exist and are not empty, newest first.
    [[nodiscard]] QList<QString> found() const;

    /// Makes the finished copy at `path`, which has `records` records, the newest one. Removes the oldest
    /// copies beyond `kCount`, but never one that has far more records. After a crash, every copy to be kept
    /// still exists, though perhaps not under its final name. Returns false, with nothing changed, if a file
    /// cannot be renamed.
    [[nodiscard]] bool add(const QString &path, qint64 records) const;

private:
    /// `number` is the one in the file's name; 0 for the newest.
    [[nodiscard]] QString nameOf(int number) const;
    [[nodiscard]] QList<int> numbers() const;
    /// Which of `numbers` to remove for a copy with `records` records.
    [[nodiscard]] QList<int> superfluous(const QList<int> &numbers, qint64 records) const;

    QString m_newest;
};

} // namespace vesk
