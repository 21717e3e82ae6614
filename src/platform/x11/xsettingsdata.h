// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/desktoplooks.h"

#include <QByteArray>
#include <QHash>
#include <QVariant>

namespace vesk {

/// The settings in the property of a settings manager, by their names: numbers as int, texts as
/// QString, colours as nothing. Of data that ends too early, what is whole.
[[nodiscard]] QHash<QString, QVariant> xsettingsFrom(const QByteArray &data);

/// What such settings say of the desktop's looks.
[[nodiscard]] DesktopLooks looksFrom(const QHash<QString, QVariant> &settings);

} // namespace vesk
