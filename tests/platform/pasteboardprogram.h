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

    /// The server has done all that was asked of it when this returns.
    void sync() const { std::ignore = connection->property32(connection->root(), XCB_ATOM_WM_NAME); }

    /// What the server has to tell has been heard when this returns.
    void catchUp() const
    {
        sync();
        // What came along with a reply is read when the event loop is about to sleep.
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
