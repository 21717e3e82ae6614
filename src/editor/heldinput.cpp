// SPDX-License-Identifier: MIT
#include "editor/heldinput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickWindow>

namespace vesk {

HeldInput::HeldInput(QQuickItem &item)
    : m_item(&item)
{
    qApp->installEventFilter(this);
}

HeldInput::~HeldInput()
{
    qApp->removeEventFilter(this);
    for (const std::unique_ptr<QEvent> &event : m_events) {
        // Each event may close the window or move the focus.
        if (m_item.isNull())
            break;
        QQuickWindow *window = m_item->window();
        const bool isFocused = window && window->activeFocusItem() == m_item;
        if (isFocused && event->type() != QEvent::InputMethod)
            QCoreApplication::sendEvent(window, event.get());
        else
            QCoreApplication::sendEvent(m_item, event.get());
    }
}

void HeldInput::dropPastes()
{
    std::erase_if(m_events, [](const std::unique_ptr<QEvent> &event) {
        return event->type() == QEvent::KeyPress
               && static_cast<const QKeyEvent &>(*event).matches(QKeySequence::Paste);
    });
}

bool HeldInput::eventFilter(QObject *watched, QEvent *event)
{
    if (!isMeantForItem(watched, *event))
        return false;
    m_events.emplace_back(event->clone());
    event->accept();
    return true;
}

bool HeldInput::isMeantForItem(const QObject *watched, const QEvent &event) const
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // Filter at the window, which may have its own use for the key.
        return !m_item.isNull() && watched == m_item->window() && m_item->hasActiveFocus();
    case QEvent::InputMethod:
        return watched == m_item;
    default:
        return false;
    }
}

} // namespace vesk
