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

/// The panel's window: created hidden, once, and from then on shown and hidden. It is at the bottom right of
/// the screen under the pointer and disappears when the user turns to another application.
class PanelWindow final : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the window, and the engine must have been lent its surroundings before. The window
    /// prepares itself for a fast first show as soon as the event loop is idle.
    PanelWindow(QQmlEngine &engine, PanelModel &model, Application &application, Screens &screens,
                Windows &windows);
    ~PanelWindow() override;

    /// Shows the panel with the focus and an empty search, on the screen under the pointer.
    void showPanel();
    /// Hides the program if the panel is shown with the focus; otherwise shows the panel.
    void togglePanel();

    [[nodiscard]] bool isShown() const { return m_view.isVisible(); }
    [[nodiscard]] QQuickView &window() { return m_view; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void prepareAhead();
    void position(const std::optional<Screen> &screen);
    /// Moves the window back to its place on its own screen, with its shape.
    void settle();
    /// Adopts a height set by the window manager, for example when the user resizes the window with the
    /// manager's own means, as the wanted height.
    void adoptHeight();
    /// Follows the mouse, which is dragging the upper edge.
    void dragEdge(qreal mouseY);
    void dropEdge();
    /// The screen that contains the window's centre; otherwise the main screen; nullopt if there is no
    /// screen.
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
    /// Waits for the window manager to respond to a change of screens, or for the end of a resize.
    QTimer m_settling;
    /// Runs while window managers may still resize the window because the screens have changed.
    QTimer m_screensSettling;
    /// The height that was requested last.
    qreal m_askedHeight = 0;
    /// Where the mouse was pressed, measured down from the window's upper edge.
    qreal m_grip = 0;
    bool m_isEdgeHeld = false;
};

} // namespace vesk
