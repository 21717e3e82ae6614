// SPDX-License-Identifier: MIT
#include "editor/trackedspan.h"

#include <QQuickItem>

#include <algorithm>
#include <utility>

namespace vesk {

TrackedSpan::TrackedSpan(QQuickItem &item, qsizetype start, qsizetype end)
    : m_item(item)
    , m_text(item.property("text").toString())
    , m_start(start)
    , m_end(end)
{
    connect(&item, SIGNAL(textChanged()), this, SLOT(follow()));
}

void TrackedSpan::follow()
{
    const QString before = std::exchange(m_text, m_item.property("text").toString());
    // The change lies between what both texts begin with and what both end with.
    const auto differs = std::ranges::mismatch(before, m_text);
    const qsizetype first = differs.in1 - before.cbegin();
    const qsizetype longest = std::min(before.size(), m_text.size()) - first;
    qsizetype last = 0;
    while (last < longest && before.at(before.size() - 1 - last) == m_text.at(m_text.size() - 1 - last))
        ++last;
    const qsizetype removedEnd = before.size() - last;
    const qsizetype growth = m_text.size() - before.size();
    const auto moved = [&](qsizetype position) {
        if (position <= first)
            return position;
        return position >= removedEnd ? position + growth : first;
    };
    m_start = moved(m_start);
    m_end = std::max(m_start, moved(m_end));
}

} // namespace vesk
