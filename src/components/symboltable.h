// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace vesk::symboltable {

/// Where the picture of a symbol is, as a resource path; none if there is no such symbol.
[[nodiscard]] std::optional<QString> findPicture(const QString &symbol);

/// Whether the picture is turned over where a language is read from right to left.
[[nodiscard]] bool isDirectional(const QString &symbol);

/// The names of all symbols.
[[nodiscard]] QList<QString> symbols();

} // namespace vesk::symboltable
