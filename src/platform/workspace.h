// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

namespace vesk {

/// A running application, as the user knows it.
struct RunningApplication
{
    /// 0 if it runs on another machine or its process is not known.
    qint64 processIdentifier = 0;
    /// Its name in the user's language; empty if it has none.
    QString localizedName;
    /// Identifies the application across machines (a desktop-entry id such as "org.xfce.mousepad"). Nullopt
    /// if no desktop entry is installed for it.
    std::optional<QString> bundleIdentifier;

    friend bool operator==(const RunningApplication &, const RunningApplication &) = default;
};

/// The applications of the desktop: which one is in front, which are installed, and how they are opened.
class Workspace : public QObject
{
    Q_OBJECT

public:
    /// Returns the application whose window has the focus now, possibly this program. Nullopt on an empty
    /// desktop, or if the window's application is not known.
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// Whether an application with this identifier is installed.
    [[nodiscard]] virtual bool hasApplication(const QString &bundleIdentifier) const = 0;

    /// Returns the icon of an installed application; a null icon if it is not installed or has none.
    [[nodiscard]] virtual QIcon iconForApplication(const QString &bundleIdentifier) const = 0;

    /// Opens an address in the user's default application and returns at once. Returns false if that failed.
    virtual bool openUrl(const QUrl &url) = 0;

    /// Launches an application or brings it forward, and returns at once. Returns false if it is not
    /// installed.
    virtual bool openApplication(const QString &bundleIdentifier) = 0;

Q_SIGNALS:
    /// Emitted when another application, possibly this program, comes to the front. Not emitted for a change
    /// of windows within one application.
    void didActivateApplication(const vesk::RunningApplication &application);
};

} // namespace vesk
