// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

class QQuickItem;

namespace vesk {

/// Waits for the moment at which an item can take the keyboard: until it has a window, for 0.2 s at
/// most; then for 60 ms; then until that window is active, for 0.3 s at most. Owned by the item's view.
class FocusTask final : public QObject
{
    Q_OBJECT

public:
    /// The item has to outlive the task.
    explicit FocusTask(const QQuickItem &item, QObject *parent = nullptr);

    /// Begins to wait, anew if it waits already.
    void start();
    /// Ends the wait at once; whether there was one.
    bool finish();

Q_SIGNALS:
    /// The wait is over, once for each start; the item may still be without a window.
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
