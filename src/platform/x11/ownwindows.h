// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <xcb/xcb.h>

class QWindow;

/// Vesk's own windows as the X server sees them. Everything goes over Qt's connection, in order with
/// what Qt itself says about its windows.
namespace vesk::ownwindows {

[[nodiscard]] xcb_window_t idOf(QWindow &window);
[[nodiscard]] xcb_atom_t atom(const char *name);

void setCardinal(QWindow &window, const char *property, quint32 value);
/// Adds to the states with which the window will be shown.
void addStates(QWindow &window, const QList<const char *> &states);
/// Cuts a window to these rectangles, in pixels of the server; to none for the whole window.
void setShape(QWindow &window, const QList<xcb_rectangle_t> &rectangles);
/// Asks the window manager to give a window, of whatever application, the keyboard.
void requestActivation(xcb_window_t window, xcb_timestamp_t time);

} // namespace vesk::ownwindows
