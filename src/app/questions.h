// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"

#include <QList>
#include <QObject>
#include <QPointer>

namespace vesk {

class Application;

/// Shows Vesk's questions one at a time, and none while the user writes in the quick-note box: the words
/// would go to the question, and a Space among them could answer it. Owned by the application.
class Questions final : public QObject
{
    Q_OBJECT

public:
    /// Must outlive it.
    explicit Questions(Application &application);

    /// Takes what is shown away, and keeps every question back until `resume`.
    void pause();
    void resume();

    /// Shows a question that the user has asked for, or brings it forward.
    void showAsked(MessageWindow &window) { show(window, MessageWindow::Arrival::Asked); }
    /// Shows a question that comes up by itself. The keys that are typed in its first moments answer nothing.
    void showUnasked(MessageWindow &window) { show(window, MessageWindow::Arrival::Unasked); }
    /// Takes the question away and gives the keyboard back to the window that had it.
    void hide(MessageWindow &window);

private:
    void show(MessageWindow &window, MessageWindow::Arrival arrival);
    void showWaiting();

    Application &m_application;
    bool m_isPaused = false;
    QPointer<MessageWindow> m_shown;
    QList<QPointer<MessageWindow>> m_waiting;
};

} // namespace vesk
