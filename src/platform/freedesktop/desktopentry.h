// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QIODevice;

namespace vesk {

/// What Vesk needs of one desktop entry: the file by which an application is installed.
struct DesktopEntry
{
    /// The file's name without its ending, folders joined by dashes.
    QString id;
    /// In the user's language.
    QString name;
    /// A theme's icon name, or an absolute path.
    QString icon;
    /// The command line, field codes and quotes included.
    QString exec;
    /// The class of the application's windows; empty if the file does not say.
    QString startupWMClass;
    /// Whether menus leave it out.
    bool isHidden = false;
    /// What kinds of application it belongs to, by the names of the desktop menu specification.
    QStringList categories;

    /// Reads a desktop-entry file. None if it cannot be read, is no application, or is deleted by the
    /// user (`Hidden`).
    [[nodiscard]] static std::optional<DesktopEntry> read(const QString &path, const QString &id);
    /// The same from what is open already.
    [[nodiscard]] static std::optional<DesktopEntry> read(QIODevice &file, const QString &id);

    /// The command line in words, without field codes; empty if it is malformed.
    [[nodiscard]] QStringList command() const;
};

} // namespace vesk
