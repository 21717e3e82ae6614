// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <QSize>

#include <array>

namespace vesk {

/// What a dock keeps free for itself at the edges of the desktop that all screens make up. In pixels of
/// the server, as the window manager's rules have it: left, right, top, bottom, and then for each of
/// these edges where along it the dock begins and ends, both included.
using Strut = std::array<quint32, 12>;

/// A strut of the older kind, which is as long as its edge.
[[nodiscard]] Strut wholeEdges(quint32 left, quint32 right, quint32 top, quint32 bottom);

/// What the docks leave of a screen. A strut that would take the whole of it, because the dock stands on
/// the inner edge of a screen beyond, takes nothing.
[[nodiscard]] QRect spaceOn(const QRect &screen, QSize desktop, const QList<Strut> &struts);

} // namespace vesk
