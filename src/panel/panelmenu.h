// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// The requests of the panel's menu to the program. Owned by the panel's model.
class PanelMenu final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// Whether a check for updates can be started now. Initially false; set by the program.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates WRITE setCanCheckForUpdates NOTIFY changed)

public:
    explicit PanelMenu(QObject *parent);

    [[nodiscard]] bool canCheckForUpdates() const { return m_canCheckForUpdates; }
    void setCanCheckForUpdates(bool canCheck);

Q_SIGNALS:
    void changed();

    // Each of these is emitted by a menu item.
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
