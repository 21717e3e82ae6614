// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace vesk {

class Application;

/// Shows Vesk's questions one at a time, and none while the user writes in the quick-note box: what is typed
/// would go to the question, and a space could answer it. A question that opens by itself waits until the
/// keyboard has been quiet for a moment, so that what the user is typing goes where it was meant to go.
/// Owned by the application.
class Questions final : public QObject
{
    Q_OBJECT

public:
    /// `application` must outlive this object.
    explicit Questions(Application &application);

    /// Hides the current question, and holds back all questions until `resume`.
    void pause();
    void resume();

    /// Shows a question that the user has asked for, or brings it forward.
    void showAsked(MessageWindow &window) { show(window, MessageWindow::Arrival::Asked); }
    /// Shows a question that opens by itself, once the keyboard is quiet or after 10 s. Keys that are typed
    /// in its first moments are ignored.
    void showUnasked(MessageWindow &window) { show(window, MessageWindow::Arrival::Unasked); }
    /// Hides the question and gives the focus back to the window that had it.
    void hide(MessageWindow &window);

private:
    void show(MessageWindow &window, MessageWindow::Arrival arrival);
    /// Begins to wait for a moment in which the first of those that wait can be shown.
    void showWaiting();
    void lookForQuiet();
    [[nodiscard]] bool isAnyShown() const { return m_shown && m_shown->window().isVisible(); }

    Application &m_application;
    bool m_isPaused = false;
    QTimer m_look;
    int m_looks = 0;
    int m_looksWithoutKey = 0;
    QPointer<MessageWindow> m_shown;
    QList<QPointer<MessageWindow>> m_waiting;
};

} // namespace vesk
