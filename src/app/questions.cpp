// SPDX-License-Identifier: MIT
#include "app/questions.h"

#include "platform/application.h"

#include <QTimer>

namespace vesk {

Questions::Questions(Application &application)
    : m_application(application)
{
}

void Questions::pause()
{
    m_isPaused = true;
    if (!m_shown || !m_shown->window().isVisible())
        return;
    m_waiting.prepend(m_shown);
    m_shown->hide();
}

void Questions::resume()
{
    m_isPaused = false;
    // The whole program may be about to be hidden; only then is there a place for a question.
    QTimer::singleShot(0, this, &Questions::showWaiting);
}

void Questions::show(MessageWindow &window, MessageWindow::Arrival arrival)
{
    m_waiting.removeAll(&window);
    const bool isOtherShown = m_shown && m_shown != &window && m_shown->window().isVisible();
    if (isOtherShown || m_isPaused) {
        m_waiting.append(&window);
        return;
    }
    m_shown = &window;
    window.show(arrival);
    m_application.activate(window.window());
}

void Questions::hide(MessageWindow &window)
{
    m_waiting.removeAll(&window);
    if (!window.window().isVisible())
        return;
    m_application.giveKeyboardBack(window.window());
    window.hide();
    showWaiting();
}

void Questions::showWaiting()
{
    m_waiting.removeAll(nullptr);
    // Whoever had to wait for it no longer expects it.
    if (!m_isPaused && !m_waiting.isEmpty())
        showUnasked(*m_waiting.first());
}

} // namespace vesk
