// SPDX-License-Identifier: MIT
#include "platform/memory/memoryworkspace.h"

namespace vesk {

bool MemoryWorkspace::hasApplication(const QString &bundleIdentifier) const
{
    return m_installed.contains(bundleIdentifier);
}

QIcon MemoryWorkspace::iconForApplication(const QString &bundleIdentifier) const
{
    return m_installed.value(bundleIdentifier);
}

bool MemoryWorkspace::openUrl(const QUrl &url)
{
    m_openedUrls.append(url);
    return true;
}

bool MemoryWorkspace::openApplication(const QString &bundleIdentifier)
{
    if (!hasApplication(bundleIdentifier))
        return false;
    m_openedApplications.append(bundleIdentifier);
    return true;
}

void MemoryWorkspace::setFrontmostApplication(const std::optional<RunningApplication> &application)
{
    if (m_frontmost == application)
        return;
    m_frontmost = application;
    if (application)
        Q_EMIT didActivateApplication(*application);
}

void MemoryWorkspace::install(const QString &bundleIdentifier, const QIcon &icon)
{
    m_installed.insert(bundleIdentifier, icon);
}

} // namespace vesk
