// SPDX-License-Identifier: MIT
#include "app/keyorder.h"

#include <QKeyEvent>
#include <QWindow>

#include <algorithm>

using namespace std::chrono_literals;

namespace vesk {

namespace {

/// Twice as long as Qt itself waits for the answer.
constexpr auto kPatience = 200ms;

} // namespace

KeyOrder::KeyOrder(QWindow &window)
{
    m_due.setSingleShot(true);
    m_due.setInterval(0ms);
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatience);
    connect(&m_due, &QTimer::timeout, this, &KeyOrder::runDue);
    connect(&m_patience, &QTimer::timeout, this, &KeyOrder::giveUp);
    window.installEventFilter(this);
}

void KeyOrder::run(const Command &command)
{
    // The command's own key is not delivered.
    m_isCommandHeld = true;
    m_keysUnderWay = std::max(0, m_keysUnderWay - 1);
    if (m_keysUnderWay == 0)
        return command();
    m_waiting.push_back({.command = command, .keysBefore = m_keysUnderWay});
    m_patience.start();
}

bool KeyOrder::eventFilter(QObject *watched, QEvent *event)
{
    // The window is asked about each key as it is pressed, whoever is shown it then.
    if (event->type() == QEvent::ShortcutOverride)
        countPressed(static_cast<QKeyEvent *>(event)->isAutoRepeat());
    else if (event->type() == QEvent::KeyPress)
        countDelivered();
    return QObject::eventFilter(watched, event);
}

void KeyOrder::countPressed(bool isRepeated)
{
    m_isCommandHeld = m_isCommandHeld && isRepeated;
    // The repetitions of a command's key are delivered to nobody.
    if (!m_isCommandHeld)
        ++m_keysUnderWay;
}

void KeyOrder::countDelivered()
{
    // What the key before this one made due comes first.
    runDue();
    m_keysUnderWay = std::max(0, m_keysUnderWay - 1);
    for (Waiting &waiting : m_waiting)
        --waiting.keysBefore;
    if (!m_waiting.empty())
        m_due.start();
}

void KeyOrder::runDue()
{
    while (!m_waiting.empty() && m_waiting.front().keysBefore <= 0) {
        const Command command = m_waiting.front().command;
        m_waiting.pop_front();
        command();
    }
}

void KeyOrder::giveUp()
{
    m_keysUnderWay = 0;
    for (Waiting &waiting : m_waiting)
        waiting.keysBefore = 0;
    runDue();
}

} // namespace vesk
