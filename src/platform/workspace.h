// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

namespace vesk {

/// An application that is running, as the user knows it.
struct RunningApplication
{
    /// 0 if it does not run on this machine, or its process cannot be told.
    qint64 processIdentifier = 0;
    /// Name in the user's language; empty if the application has none.
    QString localizedName;
    /// What identifies the application across machines (a desktop-entry id such as
    /// "org.xfce.mousepad"); none if it is not installed in the ordinary way.
    std::optional<QString> bundleIdentifier;

    friend bool operator==(const RunningApplication &, const RunningApplication &) = default;
};

/// The applications of the desktop: which one the user works in, where they are, how they are opened.
class Workspace : public QObject
{
    Q_OBJECT

public:
    /// The application whose window has the keyboard, read at the call. None on an empty desktop, or
    /// if the window's application cannot be told. May be this program.
    [[nodiscard]] virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// Whether an application with this identifier is installed.
    [[nodiscard]] virtual bool hasApplication(const QString &bundleIdentifier) const = 0;

    /// The icon of an installed application; a null icon if it is not installed or has none.
    [[nodiscard]] virtual QIcon iconForApplication(const QString &bundleIdentifier) const = 0;

    /// Opens an address in the user's application for it, without waiting. False if it could not be
    /// handed over.
    virtual bool openUrl(const QUrl &url) = 0;

    /// Launches an application or brings it forward, without waiting. False if it is not installed.
    virtual bool openApplication(const QString &bundleIdentifier) = 0;

Q_SIGNALS:
    /// Another application has become frontmost, this program included. Not fired for a change of
    /// window within one application.
    void didActivateApplication(const vesk::RunningApplication &application);
};

} // namespace vesk
