// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QIODevice;

namespace vesk {

/// The parts of a desktop entry, the file that describes an installed application, that Vesk needs.
struct DesktopEntry
{
    /// The file name without its suffix, with folders joined by dashes.
    QString id;
    /// In the user's language.
    QString name;
    /// A name in the icon theme, or an absolute path.
    QString icon;
    /// The command line, including field codes and quotes.
    QString exec;
    /// The window class of the application; empty if the file does not say.
    QString startupWMClass;
    /// Whether menus do not show it.
    bool isHidden = false;
    /// Categories, as named by the desktop menu specification.
    QStringList categories;

    /// Reads a desktop-entry file. Returns nullopt if it cannot be read, is not an application, or was
    /// deleted by the user (`Hidden`).
    [[nodiscard]] static std::optional<DesktopEntry> read(const QString &path, const QString &id);
    /// The same for an open file.
    [[nodiscard]] static std::optional<DesktopEntry> read(QIODevice &file, const QString &id);

    /// Returns the words of the command line without field codes; empty if it is malformed.
    [[nodiscard]] QStringList command() const;
};

} // namespace vesk
