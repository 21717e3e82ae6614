// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/desktopentry.h"

#include <QHash>
#include <QIcon>
#include <QList>

#include <optional>

namespace vesk {

/// What a window says about its application. Empty where it says nothing.
struct WindowIdentity
{
    /// Set by GTK applications.
    QString gtkApplicationId;
    /// The two parts of WM_CLASS.
    QString instanceName;
    QString className;
    /// File name of the executable of its process.
    QString executableName;
};

/// The installed applications, according to their desktop entries. Read once, when first needed.
class DesktopEntries final
{
public:
    /// Looks in `applications` below `$XDG_DATA_HOME` and `$XDG_DATA_DIRS`, the user’s folder first.
    DesktopEntries();
    /// Looks in these folders of desktop files. Earlier folders take precedence.
    explicit DesktopEntries(QStringList folders);

    /// Returns null if no application has this identifier.
    [[nodiscard]] const DesktopEntry *find(const QString &id) const;

    /// Returns the application that a window belongs to; null if that is not known.
    [[nodiscard]] const DesktopEntry *match(const WindowIdentity &window) const;

    /// Returns a null icon if the application or its icon is not installed.
    [[nodiscard]] QIcon icon(const QString &id) const;

    /// Runs the command of an application, which starts it or brings it forward. Returns false if it is not
    /// installed or cannot be started.
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
