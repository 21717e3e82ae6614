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
    /// The program, and its arguments.
    QStringList command;
    /// Files of the home folder that it reads when it starts: path and content.
    QList<std::pair<QString, QString>> files = {};

    /// The one that `VESK_WINDOW_MANAGER` names, openbox if the variable is not set. Nullopt if the name
    /// is not known.
    [[nodiscard]] static std::optional<WindowManager> chosen();

    [[nodiscard]] bool isInstalled() const;
};

} // namespace vesk
