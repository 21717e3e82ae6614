// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQuickView>
#include <QString>
#include <QTimer>

class QKeyEvent;
class QQmlEngine;

namespace vesk {

/// A small window above all others that tells the user something and has one or two buttons. Closing it,
/// or Escape, is the same as the second button, or as the only one. It fits on the screen under the
/// pointer; a longer text scrolls. A key that is held answers nothing.
class MessageWindow final : public QObject
{
    Q_OBJECT

public:
    struct Content
    {
        QString heading;
        QString message;
        QString acceptLabel;
        /// Empty for no second button.
        QString rejectLabel;
        /// A longer text to look through and copy from, under the message; empty for none.
        QString details = {};
        /// Whether the second button loses something: then the first has the keyboard at first, and
        /// Escape does nothing.
        bool isRejectCostly = false;
    };

    enum class Rejection {
        ByButton,
        /// By Escape, or by the window manager.
        ByClosing,
    };

    enum class Arrival {
        /// The user has asked for it: the button that loses nothing has the keyboard at first.
        Asked,
        /// It comes up by itself, and the keys that the user is typing are not meant for it: no button has
        /// the keyboard at first, and no key answers until the keyboard has been quiet for a moment.
        Unasked,
    };

    /// Hidden at first. The engine must be lent its surroundings before, and must outlive the window.
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
    /// Gives the window the size of what it shows, and no other.
    void fit();
    /// Makes the window no larger than its screen, and puts it into the middle.
    void place();
    /// Whether a key of the window must not be acted on.
    [[nodiscard]] bool isSwallowed(const QKeyEvent &event);

    QQuickView m_view;
    /// Runs while keys that are typed may be meant for another window.
    QTimer m_guard;
    bool m_isUnasked = false;
    bool m_isRejectCostly;
};

} // namespace vesk
