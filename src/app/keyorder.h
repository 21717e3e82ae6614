// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

class QWindow;

namespace vesk {

/// Keeps commands in order with the other keys of a window. While assistive programs listen, Qt shows them
/// each key press first and delivers it when they have answered. It does not do so for a key that runs a
/// command, which would therefore overtake the keys before it.
class KeyOrder final : public QObject
{
    Q_OBJECT

public:
    using Command = std::function<void()>;

    /// The window must outlive this object. All other event filters must be installed before.
    explicit KeyOrder(QWindow &window);

    /// Runs the command of the key that was just pressed, at once or after the keys before it were delivered.
    /// Waits at most 0.2 s, because assistive programs may keep a key for themselves.
    void run(const Command &command);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Waiting
    {
        Command command;
        /// How many keys must be delivered first.
        int keysBefore = 0;
    };

    void countPressed(bool isRepeated);
    void countDelivered();
    void runDue();
    void giveUp();

    std::deque<Waiting> m_waiting;
    /// Pressed but not delivered yet.
    int m_keysUnderWay = 0;
    /// Whether the last pressed key runs a command.
    bool m_isCommandHeld = false;
    QTimer m_due;
    QTimer m_patience;
};

} // namespace vesk
