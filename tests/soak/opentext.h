// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace vesk {

/// Which changes of an open note's text an action can explain. Goes by its letters alone: the editor makes
/// white space and markers of what is typed, by rules that have tests of their own.
class OpenText final
{
public:
    /// What an action can do to the text that has the keyboard.
    struct Reach
    {
        /// Texts of which a part may be inserted.
        QStringList insertions = {};
        /// How many letters may go in one place, beside those that are selected.
        qsizetype removal = 0;
        /// Whether an earlier text may come back, or the selected text go to another place.
        bool goesBack = false;
        bool moves = false;
    };

    /// To be called before each action. `selected` is what is selected in the editor.
    void begin(const QString &selected);
    [[nodiscard]] Reach &reach() { return m_reach; }
    /// To be called after each key: an undoing may lead back to this text.
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
