// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

class QQuickItem;

namespace vesk {

/// Waits until an item can take the focus: for at most 0.2 s until it has a window, then for 60 ms, then for
/// at most 0.3 s until that window is active. Owned by the item's view.
class FocusTask final : public QObject
{
    Q_OBJECT

public:
    /// The item must outlive the task.
    explicit FocusTask(const QQuickItem &item, QObject *parent = nullptr);

    /// Starts waiting, or restarts if it is already waiting.
    void start();
    /// Ends the wait at once; returns whether there was one.
    bool finish();

Q_SIGNALS:
    /// The wait is over. Emitted once for each start; the item may still have no window.
    void ended();

private:
    void check();
    void checkLater();

    const QQuickItem &m_item;
    QTimer m_timer;
    bool m_hasSettled = false;
    int m_checks = 0;
};

} // namespace vesk
