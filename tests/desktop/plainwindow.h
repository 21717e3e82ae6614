// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/windows.h"

namespace vesk {

/// A window of the test's own, as simple applications and docks have them.
class PlainWindow final
{
public:
    PlainWindow(DisplayConnection &display, const QString &title, const QRect &geometry);
    ~PlainWindow();
    Q_DISABLE_COPY_MOVE(PlainWindow)

    /// Has the window keep an edge of the desktop free: left, right, top, bottom, and then for each where
    /// it begins and ends. Before it is shown, it becomes a dock by this.
    void setStrut(const std::array<quint32, 12> &strut);
    /// Before it is shown.
    void setFullScreen();
    void show();

    [[nodiscard]] Window window() const;

private:
    DisplayConnection &m_display;
    xcb_window_t m_id;
    QString m_title;
};

} // namespace vesk
