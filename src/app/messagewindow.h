// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQuickView>
#include <QString>
#include <QTimer>

class QKeyEvent;
class QQmlEngine;

namespace vesk {

/// A small window above all others with a message and one or two buttons. Closing it or pressing Escape is
/// like the second button, or the only one. It fits on the screen with the pointer; a longer text scrolls.
/// Holding a key down does not press a button.
class MessageWindow final : public QObject
{
    Q_OBJECT

public:
    struct Content
    {
        QString heading;
        QString message;
        QString acceptLabel;
        /// Empty if there is no second button.
        QString rejectLabel;
        /// A longer text under the message, to read and copy from; empty if there is none.
        QString details = {};
        /// Whether the second button loses something. If so, the first button has the focus at first and
        /// Escape does nothing.
        bool isRejectCostly = false;
    };

    enum class Rejection {
        ByButton,
        /// By Escape, or by the window manager.
        ByClosing,
    };

    enum class Arrival {
        /// The user has asked for the window: the button that loses nothing has the focus at first.
        Asked,
        /// The window opens by itself, and the keys that the user is typing are not meant for it: keys are
        /// ignored until the keyboard has been quiet for a moment. No button has the focus at first, unless
        /// the second one loses something.
        Unasked,
    };

    /// Hidden at first. `lendToEngine` must have been called for the engine, which must outlive the window.
    MessageWindow(QQmlEngine &engine, const Content &content);
    ~MessageWindow() override;

    /// Shows the window, or brings it forward.
    void show(Arrival arrival = Arrival::Asked);
    void hide();
    void setAcceptLabel(const QString &label);
    void setDetails(const QString &details);

    [[nodiscard]] QQuickView &window() { return m_view; }

Q_SIGNALS:
    void accepted();
    void rejected(vesk::MessageWindow::Rejection how);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onRejected() { Q_EMIT rejected(Rejection::ByButton); }

private:
    /// Fixes the window's size to that of its content.
    void fit();
    /// Limits the window to its screen and centres it.
    void place();
    /// Whether a key press must be ignored.
    [[nodiscard]] bool isSwallowed(const QKeyEvent &event);

    QQuickView m_view;
    /// Runs while typed keys may be meant for another window.
    QTimer m_guard;
    bool m_isUnasked = false;
    bool m_isRejectCostly;
};

} // namespace vesk
