// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <xcb/xcb.h>

class QWindow;

/// Changes Vesk's own windows on the X server. Everything goes over Qt's connection, so that it stays in
/// order with Qt's own requests about its windows.
namespace vesk::ownwindows {

[[nodiscard]] xcb_window_t idOf(QWindow &window);
[[nodiscard]] xcb_atom_t atom(const char *name);

void setCardinal(QWindow &window, const char *property, quint32 value);
/// Adds to the states that the window will have when it is shown.
void addStates(QWindow &window, const QList<const char *> &states);
/// Cuts a window to these rectangles, in pixels of the server. An empty list removes the cut.
void setShape(QWindow &window, const QList<xcb_rectangle_t> &rectangles);
/// Asks the window manager to focus a window of any application.
void requestActivation(xcb_window_t window, xcb_timestamp_t time);

} // namespace vesk::ownwindows
