// SPDX-License-Identifier: MIT
#include "platform/memory/memoryapplication.h"

#include <QGuiApplication>

namespace vesk {

void MemoryApplication::hide()
{
    if (m_isHidden)
        return;
    m_isHidden = true;
    m_isActive = false;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (!(window->flags() & Qt::WindowDoesNotAcceptFocus))
            window->hide();
    }
    Q_EMIT didHide();
}

bool MemoryApplication::holdKeys()
{
    m_expectsKeys = false;
    return false;
}

void MemoryApplication::activate(QWindow &window)
{
    m_isActive = true;
    m_activatedWindow = &window;
    window.requestActivate();
}

void MemoryApplication::giveKeyboardBack(QWindow &window)
{
    if (m_activatedWindow == &window)
        m_isActive = false;
}

void MemoryApplication::resignActive()
{
    if (!m_isActive)
        return;
    m_isActive = false;
    Q_EMIT didResignActive();
}

} // namespace vesk
