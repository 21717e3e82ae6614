// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPropertyAnimation>
#include <QQuickView>
#include <QTimer>

#include <optional>

class QMouseEvent;
class QQmlEngine;

namespace vesk {

class Application;
class PanelModel;
class Screens;
class Surroundings;
class Windows;
struct Screen;

/// The panel's window: made once, hidden, and from then on shown and hidden. It stands at the bottom
/// right of the screen under the pointer and goes away when the user turns to another application.
class PanelWindow final : public QObject
{
    Q_OBJECT

public:
    /// All of these have to outlive the window, and the engine has to be lent its surroundings before.
    /// The window readies itself to be shown fast as soon as the event loop has nothing else to do.
    PanelWindow(QQmlEngine &engine, PanelModel &model, Application &application, Screens &screens,
                Windows &windows);
    ~PanelWindow() override;

    /// Brings the panel up with the keyboard, on the screen under the pointer, with nothing searched for.
    void showPanel();
    /// Hides the program if the panel is up and has the keyboard; else brings the panel up.
    void togglePanel();

    [[nodiscard]] bool isShown() const { return m_view.isVisible(); }
    [[nodiscard]] QQuickView &window() { return m_view; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void prepareAhead();
    void position(const std::optional<Screen> &screen);
    /// Puts the window back where it belongs on its own screen, in its shape.
    void settle();
    /// Takes a height that the window manager has given the window, as it does when the user resizes it
    /// by the manager's own means, for what is wanted from now on.
    void adoptHeight();
    /// Follows the mouse, which holds the upper edge.
    void dragEdge(qreal mouseY);
    void dropEdge();
    /// The screen that the window's middle is on; else the main screen; none if there is no screen.
    [[nodiscard]] std::optional<Screen> ownScreen() const;
    void handleMouse(const QMouseEvent &event);
    void hideWindow();

    PanelModel &m_model;
    Application &m_application;
    Screens &m_screens;
    Windows &m_windows;
    Surroundings &m_surroundings;
    QQuickView m_view;
    QPropertyAnimation m_fadeIn;
    /// Waits for the window manager's own answer to a change of screens, or for the end of a resize.
    QTimer m_settling;
    /// Runs while window managers may still resize the window because the screens have changed.
    QTimer m_screensSettling;
    /// The height that was asked for last.
    qreal m_askedHeight = 0;
    /// Where the mouse was pressed, down from the window's upper edge.
    qreal m_grip = 0;
    bool m_isEdgeHeld = false;
};

} // namespace vesk
