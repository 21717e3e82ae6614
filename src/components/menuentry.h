// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// An entry of a menu: an action, or a separator if it has no text.
class MenuEntry : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setEnabled NOTIFY changed)
    /// Whether the menu currently shows the entry.
    Q_PROPERTY(bool isVisible READ isVisible WRITE setVisible NOTIFY changed)
    Q_PROPERTY(bool isDivider READ isDivider NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] const QString &text() const { return m_text; }
    void setText(const QString &text);
    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool isEnabled);
    [[nodiscard]] bool isVisible() const { return m_isVisible; }
    void setVisible(bool isVisible);
    [[nodiscard]] bool isDivider() const { return m_text.isEmpty(); }
    [[nodiscard]] bool canBeChosen() const { return m_isEnabled && m_isVisible && !isDivider(); }

Q_SIGNALS:
    /// The user has chosen the entry, and its menu has closed.
    void triggered();
    void changed();

private:
    QString m_text;
    bool m_isEnabled = true;
    bool m_isVisible = true;
};

} // namespace vesk
