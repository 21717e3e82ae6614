// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQuickView>
#include <QString>

class QQmlEngine;

namespace vesk {

/// A small window that tells the user something and has one or two buttons. Closing it, or Escape,
/// is the same as the second button, or as the only one.
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

    /// Hidden at first. The engine must be lent its surroundings before, and must outlive the window.
    MessageWindow(QQmlEngine &engine, const Content &content);
    ~MessageWindow() override;

    /// Shows the window, or brings it forward.
    void show();
    void hide();
    void setAcceptLabel(const QString &label);
    void setDetails(const QString &details);

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

    QQuickView m_view;
    bool m_isRejectCostly;
};

} // namespace vesk
