// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/windows.h"

namespace vesk {

/// A window created by the test, like those of simple applications and docks.
class PlainWindow final
{
public:
    PlainWindow(DisplayConnection &display, const QString &title, const QRect &geometry);
    ~PlainWindow();
    Q_DISABLE_COPY_MOVE(PlainWindow)

    /// Reserves an edge of the desktop for the window: left, right, top, bottom, and then the start and end
    /// of each. If called before the window is shown, the window becomes a dock.
    void setStrut(const std::array<quint32, 12> &strut);
    /// Must be called before the window is shown.
    void setFullScreen();
    void show();

    [[nodiscard]] Window window() const;

private:
    DisplayConnection &m_display;
    xcb_window_t m_id;
    QString m_title;
};

} // namespace vesk
