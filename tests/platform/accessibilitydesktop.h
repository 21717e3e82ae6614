// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/busdaemon.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <memory>

namespace vesk {

/// A session bus of the test's own, with an accessibility bus that comes and goes as the test wants.
class AccessibilityDesktop final : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// Makes the session bus that of this process; to be made before anything uses that.
    AccessibilityDesktop();
    ~AccessibilityDesktop() override;
    Q_DISABLE_COPY_MOVE(AccessibilityDesktop)

    /// Starts the accessibility bus and its launcher; false if that failed.
    [[nodiscard]] bool startBus();
    /// Kills both.
    void killBus();
    [[nodiscard]] QString busAddress() const { return m_bus ? m_bus->address() : QString(); }

    /// Puts applications below the registry.
    void setApplications(const QStringList &services) { m_applications = services; }
    /// Whether the registry leaves all questions without an answer.
    void setSilent(bool isSilent) { m_isSilent = isSilent; }
    /// Connection that has asked for events last and is still there; empty if there is none.
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
