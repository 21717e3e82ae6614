// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/xreply.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <xcb/xcb.h>

#include <memory>
#include <optional>

namespace vesk {

/// A connection to the X server besides Qt's own. Hot keys, raw input and selections use this one, so that
/// Qt's windows are not affected. Reading may wait for the server, but never for another application.
class X11Connection final : public QObject
{
    Q_OBJECT

public:
    struct OpenResult
    {
        std::unique_ptr<X11Connection> connection;
        /// One sentence that says why the connection could not be opened.
        QString error;
    };

    /// Whether there is a server at `$DISPLAY`. If there is none, Qt exits with a message that helps nobody.
    [[nodiscard]] static bool hasServer();

    /// Connects to `$DISPLAY` and checks that the server has the extensions that Vesk needs.
    [[nodiscard]] static OpenResult open();
    ~X11Connection() override;

    [[nodiscard]] xcb_connection_t *xcb() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_screen->root; }
    /// A window of our own that is never shown, to receive events that need a window.
    [[nodiscard]] xcb_window_t window() const { return m_window; }

    [[nodiscard]] xcb_atom_t atom(const char *name) const;
    [[nodiscard]] QString atomName(xcb_atom_t atom) const;

    /// The first event number of an extension, and its major opcode for generic events.
    [[nodiscard]] quint8 xfixesEvent() const { return m_xfixesEvent; }
    [[nodiscard]] quint8 randrEvent() const { return m_randrEvent; }
    [[nodiscard]] quint8 inputOpcode() const { return m_inputOpcode; }

    /// The whole of a property as bytes; empty if it or the window does not exist.
    [[nodiscard]] QByteArray property(xcb_window_t window, xcb_atom_t name) const;
    /// The first 32-bit value of a property; nullopt if the property or the window does not exist.
    [[nodiscard]] std::optional<quint32> property32(xcb_window_t window, xcb_atom_t name) const;
    /// Listens for these events of a window in addition to any others, and returns those that were not
    /// listened for before. To stop listening, pass that return value to `removeEvents`, so that other
    /// listeners for the window are not affected.
    [[nodiscard]] uint32_t addEvents(xcb_window_t window, uint32_t events) const;
    void removeEvents(xcb_window_t window, uint32_t events) const;
    /// The process of the client that created a window or owns a selection with it; nullopt if it is gone or
    /// the server does not know.
    [[nodiscard]] std::optional<qint64> clientProcess(xcb_window_t window) const;

    /// The server's time of the last hot key or window change that we received, for requests on the user's
    /// behalf.
    [[nodiscard]] xcb_timestamp_t userTime() const { return m_userTime; }
    void setUserTime(xcb_timestamp_t time) { m_userTime = time; }

    void flush() { xcb_flush(m_connection); }

Q_SIGNALS:
    /// Every event, in the server's order. `event` is only valid during the signal.
    void eventReceived(const xcb_generic_event_t *event);
    /// The server has gone; nothing works any more.
    void lost();

private:
    explicit X11Connection(xcb_connection_t *connection, int screenNumber);

    /// Returns why the server cannot be used; empty if it can.
    [[nodiscard]] QString setUpExtensions();
    void listen();
    /// The events of a window that this connection listens for; nullopt if there is no such window.
    [[nodiscard]] std::optional<uint32_t> ownEvents(xcb_window_t window) const;
    void readEvents();

    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen = nullptr;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    quint8 m_xfixesEvent = 0;
    quint8 m_randrEvent = 0;
    quint8 m_inputOpcode = 0;
    xcb_timestamp_t m_userTime = XCB_CURRENT_TIME;
    std::unique_ptr<QSocketNotifier> m_notifier;
    mutable QHash<QByteArray, xcb_atom_t> m_atoms;
};

} // namespace vesk
