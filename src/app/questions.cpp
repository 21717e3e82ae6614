// SPDX-License-Identifier: MIT
#include "app/questions.h"

#include "platform/application.h"

#include <QTimer>

using namespace std::chrono_literals;

namespace vesk {

namespace {

/// Often enough to see every key press: nobody releases a key sooner.
constexpr auto kLook = 20ms;
constexpr auto kQuiet = 700ms;
constexpr auto kPatience = 10s;

} // namespace

Questions::Questions(Application &application)
    : m_application(application)
{
    m_look.setInterval(kLook);
    connect(&m_look, &QTimer::timeout, this, &Questions::lookForQuiet);
}

void Questions::pause()
{
    m_isPaused = true;
    m_look.stop();
    if (!isAnyShown())
        return;
    m_waiting.prepend(m_shown);
    m_shown->hide();
}

void Questions::resume()
{
    m_isPaused = false;
    // If the whole program is about to be hidden, wait until it is before showing the question.
    QTimer::singleShot(0, this, &Questions::showWaiting);
}

void Questions::show(MessageWindow &window, MessageWindow::Arrival arrival)
{
    m_waiting.removeAll(&window);
    const bool isOtherShown = isAnyShown() && m_shown != &window;
    const bool isUnasked = arrival == MessageWindow::Arrival::Unasked && !window.window().isVisible();
    if (isOtherShown || m_isPaused || isUnasked) {
        m_waiting.append(&window);
        showWaiting();
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
    if (m_isPaused || m_waiting.isEmpty() || isAnyShown() || m_look.isActive())
        return;
    m_looks = 0;
    m_looksWithoutKey = 0;
    m_look.start();
}

void Questions::lookForQuiet()
{
    m_waiting.removeAll(nullptr);
    if (m_waiting.isEmpty() || isAnyShown()) {
        m_look.stop();
        return;
    }
    ++m_looks;
    m_looksWithoutKey = m_application.isAnyKeyDown() ? 0 : m_looksWithoutKey + 1;
    if (m_looksWithoutKey * kLook < kQuiet && m_looks * kLook < kPatience)
        return;
    m_look.stop();
    m_shown = m_waiting.takeFirst();
    // The user has waited and no longer expects it.
    m_shown->show(MessageWindow::Arrival::Unasked);
    m_application.activate(m_shown->window());
}

} // namespace vesk
