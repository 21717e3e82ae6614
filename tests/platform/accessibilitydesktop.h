// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/busdaemon.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <memory>

namespace vesk {

/// A session bus for the test, with an accessibility bus that the test can start and stop.
class AccessibilityDesktop final : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// Becomes this process's session bus; must be created before anything uses that.
    AccessibilityDesktop();
    ~AccessibilityDesktop() override;
    Q_DISABLE_COPY_MOVE(AccessibilityDesktop)

    /// Starts the accessibility bus and its launcher; returns false on failure.
    [[nodiscard]] bool startBus();
    /// Kills both.
    void killBus();
    [[nodiscard]] QString busAddress() const { return m_bus ? m_bus->address() : QString(); }

    /// Adds applications to the registry.
    void setApplications(const QStringList &services) { m_applications = services; }
    /// Whether the registry leaves all calls unanswered.
    void setSilent(bool isSilent) { m_isSilent = isSilent; }
    /// The connection that was the last to request events and still exists; empty if there is none.
    [[nodiscard]] QString listener() const;

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    std::unique_ptr<BusDaemon> m_session = BusDaemon::start();
    std::unique_ptr<BusDaemon> m_bus;
    QStringList m_applications;
    QString m_listener;
    bool m_isSilent = false;
};

} // namespace vesk
