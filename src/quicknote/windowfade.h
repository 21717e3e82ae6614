// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPropertyAnimation>

#include <chrono>

class QWindow;

namespace vesk {

class Surroundings;

/// Fades a window in and out, where the desktop blends windows and the user wants motion; elsewhere it
/// is there, or gone, at once.
class WindowFade final : public QObject
{
    Q_OBJECT

public:
    /// Both have to outlive it.
    WindowFade(QWindow &window, Surroundings &surroundings);

    /// To be called before the window is shown.
    void fadeIn(std::chrono::milliseconds duration);
    /// `gone` follows, at once if nothing fades, unless the window is faded in again before. The window
    /// is to be hidden then.
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
