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
    // The key that triggers a command is not delivered.
    m_isCommandHeld = true;
    m_keysUnderWay = std::max(0, m_keysUnderWay - 1);
    if (m_keysUnderWay == 0)
        return command();
    m_waiting.push_back({.command = command, .keysBefore = m_keysUnderWay});
    m_patience.start();
}

bool KeyOrder::eventFilter(QObject *watched, QEvent *event)
{
    // The window receives this event as soon as a key is pressed, whichever item gets the key afterwards.
    if (event->type() == QEvent::ShortcutOverride)
        countPressed(static_cast<QKeyEvent *>(event)->isAutoRepeat());
    else if (event->type() == QEvent::KeyPress)
        countDelivered();
    return QObject::eventFilter(watched, event);
}

void KeyOrder::countPressed(bool isRepeated)
{
    m_isCommandHeld = m_isCommandHeld && isRepeated;
    // Repeats of a command's key are not delivered.
    if (!m_isCommandHeld)
        ++m_keysUnderWay;
}

void KeyOrder::countDelivered()
{
    // Commands that were waiting for the previous key come first.
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
