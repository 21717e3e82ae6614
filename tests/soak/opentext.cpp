// SPDX-License-Identifier: MIT
#include "soak/opentext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

void OpenText::begin(const QString &selected)
{
    m_reach = {};
    m_selected = lettersOf(selected);
}

QString OpenText::lettersOf(const QString &text)
{
    QString letters = text;
    letters.removeIf([](QChar c) { return c.isSpace() || u"[]-*#\u2610\u2611\u2022"_s.contains(c); });
    return letters;
}

bool OpenText::isSplice(const QString &before, const QString &after, const QString &insertion,
                        qsizetype removal)
{
    const qsizetype removed = before.size() - after.size() + insertion.size();
    if (removed < 0 || removed > removal)
        return false;
    const auto start = std::ranges::mismatch(before, after);
    const qsizetype same = start.in1 - before.begin();
    for (qsizetype place = 0; place <= same && place + removed <= before.size(); ++place) {
        if (QStringView(after).mid(place, insertion.size()) == insertion
            && QStringView(after).mid(place + insertion.size()) == QStringView(before).mid(place + removed))
            return true;
    }
    return false;
}

bool OpenText::explains(const RecordId &id, const QString &before, const QString &after) const
{
    const QString from = lettersOf(before);
    const QString to = lettersOf(after);
    if (from == to || (m_reach.goesBack && m_earlier.value(id).contains(to)))
        return true;
    const auto sorted = [](QString text) {
        std::ranges::sort(text);
        return text;
    };
    if (m_reach.moves && sorted(from) == sorted(to))
        return true;
    const qsizetype removal = std::max(m_selected.size(), m_reach.removal);
    for (const QString &each : m_reach.insertions + QStringList{QString()}) {
        // A key may have a different target than the ones before it.
        const QString letters = lettersOf(each);
        for (qsizetype first = 0; first <= letters.size(); ++first) {
            for (qsizetype size = letters.size() - first; size >= 0; --size) {
                if (isSplice(from, to, letters.mid(first, size), removal))
                    return true;
            }
        }
    }
    return false;
}

} // namespace vesk
