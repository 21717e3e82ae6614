// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace vesk {

/// A window manager that a virtual desktop can run.
struct WindowManager
{
    QString name;
    /// The program and its arguments.
    QStringList command;
    /// Files in the home folder that it reads when it starts: path and content.
    QList<std::pair<QString, QString>> files = {};

    /// The one named by `VESK_WINDOW_MANAGER`, or openbox if the variable is not set. nullopt if the name is
    /// unknown.
    [[nodiscard]] static std::optional<WindowManager> chosen();

    [[nodiscard]] bool isInstalled() const;
};

} // namespace vesk
