// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <xcb/xcb.h>

namespace vesk {

class X11Connection;

/// Asks a window whether its application still handles events (_NET_WM_PING).
class WindowPing final : public QObject
{
    Q_OBJECT

public:
    /// Asks at once. A window whose answer cannot be received counts as answering.
    WindowPing(X11Connection &connection, xcb_window_t window);
    ~WindowPing() override;

    /// Asks again. GTK may hold back an answer until it has something else to do.
    void ask();
    [[nodiscard]] bool isAnswered() const { return m_isAnswered; }

private:
    void listenToAnswers(bool isListening);
    void onEvent(const xcb_generic_event_t *event);

    QPointer<X11Connection> m_connection;
    xcb_window_t m_window;
    bool m_isAnswered = false;
};

} // namespace vesk
