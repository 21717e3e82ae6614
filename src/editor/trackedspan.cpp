// SPDX-License-Identifier: MIT
#include "editor/trackedspan.h"

#include "editor/splice.h"

#include <QQuickItem>

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
    const Splice change = difference(before, m_text);
    const qsizetype removedEnd = change.position + change.removed.size();
    const auto moved = [&](qsizetype position) {
        if (position <= change.position)
            return position;
        return position >= removedEnd ? position + change.growth() : change.position;
    };
    m_start = moved(m_start);
    m_end = std::max(m_start, moved(m_end));
}

} // namespace vesk
