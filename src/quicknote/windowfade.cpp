// SPDX-License-Identifier: MIT
#include "quicknote/windowfade.h"

#include "components/surroundings.h"
#include "platform/appearance.h"
#include "platform/windows.h"

#include <QWindow>

namespace vesk {

WindowFade::WindowFade(QWindow &window, Surroundings &surroundings)
    : m_window(window)
    , m_surroundings(surroundings)
    , m_animation(&window, "opacity")
{
    connect(&m_animation, &QPropertyAnimation::finished, this, &WindowFade::onFinished);
    // If the compositor exits during a fade, the window would stay faint.
    connect(&surroundings.windows(), &Windows::compositedChanged, this, [this] {
        if (m_animation.state() != QPropertyAnimation::Running)
            return;
        m_animation.stop();
        onFinished();
    });
}

void WindowFade::fadeIn(std::chrono::milliseconds duration)
{
    m_isGoing = false;
    m_animation.stop();
    m_window.setOpacity(isWanted() ? 0 : 1);
    if (isWanted())
        run(1, duration);
}

void WindowFade::fadeOut(std::chrono::milliseconds duration)
{
    m_isGoing = true;
    m_animation.stop();
    if (isWanted())
        run(0, duration);
    else
        onFinished();
}

void WindowFade::run(qreal opacity, std::chrono::milliseconds duration)
{
    m_animation.setStartValue(m_window.opacity());
    m_animation.setEndValue(opacity);
    m_animation.setDuration(static_cast<int>(duration.count()));
    m_animation.start();
}

void WindowFade::onFinished()
{
    if (!m_isGoing) {
        m_window.setOpacity(1);
        return;
    }
    m_isGoing = false;
    Q_EMIT gone();
}

bool WindowFade::isWanted() const
{
    return m_surroundings.windows().isComposited() && !m_surroundings.appearance().shouldReduceMotion();
}

} // namespace vesk
