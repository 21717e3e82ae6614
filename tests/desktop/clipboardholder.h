// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <atomic>
#include <memory>
#include <thread>
#include <xcb/xcb.h>

namespace vesk {

/// What a user has copied in some other program: owns CLIPBOARD and serves it, on a thread and a
/// connection of its own, until someone else takes it or this object goes.
class ClipboardHolder final
{
public:
    using Forms = QMap<QByteArray, QByteArray>;

    /// Owns the clipboard when this returns. Null if the server did not answer.
    [[nodiscard]] static std::unique_ptr<ClipboardHolder> hold(const QString &displayName, Forms forms);
    ~ClipboardHolder();
    Q_DISABLE_COPY_MOVE(ClipboardHolder)

    [[nodiscard]] const Forms &forms() const { return m_forms; }

    /// A program that hangs goes on owning the clipboard and answers nobody.
    void setHanging(bool isHanging) { m_isHanging = isHanging; }

private:
    ClipboardHolder(xcb_connection_t *connection, Forms forms);

    void claim();
    void serve();
    void answer(const xcb_selection_request_event_t &request);

    xcb_connection_t *m_connection;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    const Forms m_forms;
    std::atomic_bool m_isEnding = false;
    std::atomic_bool m_isHanging = false;
    std::thread m_thread;
};

} // namespace vesk
