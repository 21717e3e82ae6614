// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <QSize>

#include <array>

namespace vesk {

/// The space that a dock reserves at the edges of the desktop that all screens form. In pixels of the server,
/// in the order of _NET_WM_STRUT_PARTIAL: left, right, top, bottom, and then for each of these edges the
/// start and end of the dock along it, both inclusive.
using Strut = std::array<quint32, 12>;

/// Returns a strut of the older kind, which covers its whole edge.
[[nodiscard]] Strut wholeEdges(quint32 left, quint32 right, quint32 top, quint32 bottom);

/// Returns the part of a screen that the docks leave free. Ignores a strut that would take the whole screen
/// because the dock is on the inner edge of another screen.
[[nodiscard]] QRect spaceOn(const QRect &screen, QSize desktop, const QList<Strut> &struts);

} // namespace vesk
