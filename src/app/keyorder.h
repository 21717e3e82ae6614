// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

class QWindow;

namespace vesk {

/// Keeps commands in their place among the keys of a window. While assistive programs listen, Qt shows
/// them each key press first and delivers it when they have answered, but a press that is a command's is
/// not shown to them, and so would overtake the keys before it.
class KeyOrder final : public QObject
{
    Q_OBJECT

public:
    using Command = std::function<void()>;

    /// The window has to outlive the order, and whatever else filters its events has to be installed
    /// already.
    explicit KeyOrder(QWindow &window);

    /// Runs the command of the key that was pressed just now: at once, or after the last key before it was
    /// delivered. Waits for 0.2 s at most, as assistive programs may have kept a key for themselves.
    void run(const Command &command);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Waiting
    {
        Command command;
        /// Those that have to be delivered first.
        int keysBefore = 0;
    };

    void countPressed(bool isRepeated);
    void countDelivered();
    void runDue();
    void giveUp();

    std::deque<Waiting> m_waiting;
    /// Pressed, but not delivered yet.
    int m_keysUnderWay = 0;
    /// Whether the last key that was pressed was a command's.
    bool m_isCommandHeld = false;
    QTimer m_due;
    QTimer m_patience;
};

} // namespace vesk
