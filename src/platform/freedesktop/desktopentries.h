// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/desktopentry.h"

#include <QHash>
#include <QIcon>
#include <QList>

#include <optional>

namespace vesk {

/// What a window tells of the application that it belongs to; empty where it does not.
struct WindowIdentity
{
    /// Set by GTK applications.
    QString gtkApplicationId;
    /// The two parts of WM_CLASS.
    QString instanceName;
    QString className;
    /// Name of the file that the process runs.
    QString executableName;
};

/// The applications that are installed, by their desktop entries. Read once, on first need.
class DesktopEntries final
{
public:
    /// Looks in `applications` below `$XDG_DATA_HOME` and `$XDG_DATA_DIRS`, the user’s folder first.
    DesktopEntries();
    /// Looks in these folders of desktop files, the first before the others.
    explicit DesktopEntries(QStringList folders);

    /// Null if no application has this identifier.
    [[nodiscard]] const DesktopEntry *find(const QString &id) const;

    /// The application that a window belongs to; null if it cannot be told.
    [[nodiscard]] const DesktopEntry *match(const WindowIdentity &window) const;

    /// A null icon if the application or its icon is not installed.
    [[nodiscard]] QIcon icon(const QString &id) const;

    /// Starts an application, or lets a running one come forward, as its command does. False if it is
    /// not installed or cannot be started.
    [[nodiscard]] bool launch(const QString &id) const;

private:
    void load() const;
    void loadFolder(const QString &folder) const;
    [[nodiscard]] const DesktopEntry *matchStartupClass(const QString &windowClass) const;
    [[nodiscard]] const DesktopEntry *matchExecutable(const QString &executableName) const;

    QStringList m_folders;
    mutable bool m_isLoaded = false;
    mutable QHash<QString, DesktopEntry> m_entries;
};

} // namespace vesk
