// SPDX-License-Identifier: MIT
#pragma once

#include "platform/memory/memorypasteboard.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11pasteboard.h"

#include <QEventLoop>
#include <QTimer>

#include <memory>
#include <tuple>

namespace vesk {

/// One program's view of the X server's pasteboard.
struct Program
{
    explicit Program(X11Pasteboard::Kind kind = X11Pasteboard::Kind::Clipboard)
        : pasteboard(*connection, kind)
    {
    }

    std::unique_ptr<X11Connection> connection = X11Connection::open().connection;
    X11Pasteboard pasteboard;

    /// Returns when the server has processed all requests.
    void sync() const { std::ignore = connection->property32(connection->root(), XCB_ATOM_WM_NAME); }

    /// Returns when all events from the server have been handled.
    void catchUp() const
    {
        sync();
        // Events read along with a reply are handled when the event loop is about to sleep.
        QEventLoop loop;
        QTimer::singleShot(1, &loop, &QEventLoop::quit);
        loop.exec();
    }
};

inline PasteboardData text(const QByteArray &bytes)
{
    return {.type = MemoryPasteboard::kTextType, .data = bytes};
}

} // namespace vesk
