// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/plainwindow.h"
#include "virtualdesktop/clipboardholder.h"

#include <QByteArray>

#include <atomic>
#include <memory>
#include <optional>
#include <thread>

namespace vesk {

/// An application that exposes nothing on the accessibility bus, and copies a text on Control-C. A password
/// field and a hung application copy nothing.
class ForeignWindow final
{
public:
    /// Shows its window. With nullopt, the application copies nothing.
    ForeignWindow(const QString &displayName, std::optional<QByteArray> copies);
    ~ForeignWindow();
    Q_DISABLE_COPY_MOVE(ForeignWindow)

    [[nodiscard]] Window window() const { return m_window->window(); }
    [[nodiscard]] int copyCount() const { return m_copies; }

private:
    void serve();

    const QString m_displayName;
    const std::optional<QByteArray> m_text;
    std::unique_ptr<DisplayConnection> m_display;
    std::unique_ptr<PlainWindow> m_window;
    std::unique_ptr<ClipboardHolder> m_clipboard;
    std::atomic_int m_copies = 0;
    std::atomic_bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace vesk
