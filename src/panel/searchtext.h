// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk::searchtext {

/// What is searched for: without the spaces and tabs at both ends. Line breaks stay.
[[nodiscard]] QString query(const QString &typed);

/// Whether `text` contains `query`, upper and lower case being the same by the user's language.
/// Accents count. Everything contains an empty query.
[[nodiscard]] bool contains(const QString &text, const QString &query);

} // namespace vesk::searchtext
