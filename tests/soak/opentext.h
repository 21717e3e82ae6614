// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace vesk {

/// Which changes of an open note's text an action can explain. Only compares letters: the editor turns what
/// is typed into white space and markers by rules that have tests of their own.
class OpenText final
{
public:
    /// What an action can do to the focused text.
    struct Reach
    {
        /// Texts of which any part may be inserted.
        QStringList insertions = {};
        /// How many letters may be removed in one place, in addition to the selection.
        qsizetype removal = 0;
        /// Whether an earlier text may return, or the selected text move elsewhere.
        bool goesBack = false;
        bool moves = false;
    };

    /// Must be called before each action. `selected` is the editor's selection.
    void begin(const QString &selected);
    [[nodiscard]] Reach &reach() { return m_reach; }
    /// Must be called after each key: an undo may return to this text.
    void remember(const RecordId &id, const QString &text) { m_earlier[id].insert(lettersOf(text)); }

    [[nodiscard]] bool explains(const RecordId &id, const QString &before, const QString &after) const;

private:
    [[nodiscard]] static QString lettersOf(const QString &text);
    /// Whether `after` is `before` with at most `removal` letters in one place replaced by `insertion`.
    [[nodiscard]] static bool isSplice(const QString &before, const QString &after, const QString &insertion,
                                       qsizetype removal);

    Reach m_reach;
    QString m_selected;
    QHash<RecordId, QSet<QString>> m_earlier;
};

} // namespace vesk
