// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPropertyAnimation>

#include <chrono>

class QWindow;

namespace vesk {

class Surroundings;

/// Fades a window in and out if a compositor is running and the user wants motion; otherwise shows or hides
/// it at once.
class WindowFade final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    WindowFade(QWindow &window, Surroundings &surroundings);

    /// Must be called before the window is shown.
    void fadeIn(std::chrono::milliseconds duration);
    /// Emits `gone` at the end, at once if nothing fades, unless the window is faded in again first. Hide the
    /// window then.
    void fadeOut(std::chrono::milliseconds duration);

Q_SIGNALS:
    void gone();

private:
    void run(qreal opacity, std::chrono::milliseconds duration);
    void onFinished();
    [[nodiscard]] bool isWanted() const;

    QWindow &m_window;
    Surroundings &m_surroundings;
    QPropertyAnimation m_animation;
    bool m_isGoing = false;
};

} // namespace vesk
