// SPDX-License-Identifier: MIT
#include "platform/x11/screenspace.h"

#include <algorithm>
#include <limits>

namespace vesk {

namespace {

/// No desktop is larger than this, whatever a dock claims.
int bounded(quint32 value)
{
    constexpr quint32 kMost = std::numeric_limits<quint16>::max();
    return static_cast<int>(std::min(value, kMost));
}

QRect between(int left, int top, int right, int bottom)
{
    return {QPoint(left, top), QPoint(right, bottom)};
}

} // namespace

Strut wholeEdges(quint32 left, quint32 right, quint32 top, quint32 bottom)
{
    constexpr quint32 kEnd = std::numeric_limits<quint16>::max();
    return {left, right, top, bottom, 0, kEnd, 0, kEnd, 0, kEnd, 0, kEnd};
}

QRect spaceOn(const QRect &screen, QSize desktop, const QList<Strut> &struts)
{
    QRect space = screen;
    for (const Strut &strut : struts) {
        std::array<int, 12> edge{};
        std::ranges::transform(strut, edge.begin(), bounded);
        const QRect left = screen & between(0, edge[4], edge[0] - 1, edge[5]);
        const QRect right =
            screen & between(desktop.width() - edge[1], edge[6], desktop.width() - 1, edge[7]);
        const QRect top = screen & between(edge[8], 0, edge[9], edge[2] - 1);
        const QRect bottom =
            screen & between(edge[10], desktop.height() - edge[3], edge[11], desktop.height() - 1);
        if (!left.isEmpty() && left.width() < screen.width())
            space.setLeft(std::max(space.left(), left.right() + 1));
        if (!right.isEmpty() && right.width() < screen.width())
            space.setRight(std::min(space.right(), right.left() - 1));
        if (!top.isEmpty() && top.height() < screen.height())
            space.setTop(std::max(space.top(), top.bottom() + 1));
        if (!bottom.isEmpty() && bottom.height() < screen.height())
            space.setBottom(std::min(space.bottom(), bottom.top() - 1));
    }
    // Docks that leave no space must be wrong.
    return space.isEmpty() ? screen : space;
}

} // namespace vesk
