// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace vesk::symboltable {

/// The resource path of a symbol's picture; nullopt if there is no such symbol.
[[nodiscard]] std::optional<QString> findPicture(const QString &symbol);

/// Whether the picture is mirrored for right-to-left languages.
[[nodiscard]] bool isDirectional(const QString &symbol);

/// The names of all symbols.
[[nodiscard]] QList<QString> symbols();

} // namespace vesk::symboltable
