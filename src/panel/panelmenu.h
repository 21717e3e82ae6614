// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// What the panel's menu asks of the program. Owned by the panel's model; the program listens.
class PanelMenu final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// Whether a check for updates can be started now. False until the program says otherwise.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates WRITE setCanCheckForUpdates NOTIFY changed)

public:
    explicit PanelMenu(QObject *parent);

    [[nodiscard]] bool canCheckForUpdates() const { return m_canCheckForUpdates; }
    void setCanCheckForUpdates(bool canCheck);

Q_SIGNALS:
    void changed();

    // Each of these is sent by the menu's item.
    void guideRequested();
    void updateCheckRequested();
    void quickNoteRequested();
    void quickChecklistRequested();
    void accessibilitySettingsRequested();
    void quitRequested();

private:
    bool m_canCheckForUpdates = false;
};

} // namespace vesk
