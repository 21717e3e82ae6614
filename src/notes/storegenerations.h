// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace vesk {

/// The copies of a store that lie beside it: `Notes.copy` is the newest, `Notes.copy.1` the one before it,
/// and so on. Each is an ordinary store in one file. Internal to this layer.
class StoreGenerations final
{
public:
    /// How many copies there are, not counting those that hold far more than the store now does.
    static constexpr qsizetype kCount = 3;

    /// `store` is the path of the store that is copied.
    explicit StoreGenerations(const QString &store);

    /// Whether a store of `records` records has lost so many of `before` that an accident is likelier
    /// than its user. To delete half of the notes is normal use.
    [[nodiscard]] static bool isFarFewer(qint64 records, qint64 before);

    /// The path of the newest copy, whether or not it is there.
    [[nodiscard]] const QString &newest() const { return m_newest; }
    /// The paths of those that are there and not empty, the newest first.
    [[nodiscard]] QList<QString> found() const;

    /// Makes the finished copy at `path`, which has `records` records, the newest. Removes the oldest
    /// copies beyond `kCount`, but never one that has far more records. A crash leaves every copy that is
    /// to stay, if not under its final name. False, with nothing changed, if a file cannot be renamed.
    [[nodiscard]] bool add(const QString &path, qint64 records) const;

private:
    /// The number in its name; 0 for the newest.
    [[nodiscard]] QString nameOf(int number) const;
    [[nodiscard]] QList<int> numbers() const;
    /// Those of `numbers` that make room for a copy with `records` records.
    [[nodiscard]] QList<int> superfluous(const QList<int> &numbers, qint64 records) const;

    QString m_newest;
};

} // namespace vesk
