// SPDX-License-Identifier: MIT
#pragma once

#include "platform/workspace.h"

#include <QHash>
#include <QList>
#include <QStringList>

namespace vesk {

/// The applications of the desktop, as set by a test.
class MemoryWorkspace final : public Workspace
{
    Q_OBJECT

public:
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        return m_frontmost;
    }
    [[nodiscard]] bool hasApplication(const QString &bundleIdentifier) const override;
    [[nodiscard]] QIcon iconForApplication(const QString &bundleIdentifier) const override;
    bool openUrl(const QUrl &url) override;
    bool openApplication(const QString &bundleIdentifier) override;

    /// Simulates the user switching to an application, or to none.
    void setFrontmostApplication(const std::optional<RunningApplication> &application);
    void install(const QString &bundleIdentifier, const QIcon &icon = {});
    [[nodiscard]] const QList<QUrl> &openedUrls() const { return m_openedUrls; }
    [[nodiscard]] const QStringList &openedApplications() const { return m_openedApplications; }

private:
    std::optional<RunningApplication> m_frontmost;
    QHash<QString, QIcon> m_installed;
    QList<QUrl> m_openedUrls;
    QStringList m_openedApplications;
};

} // namespace vesk
