// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// The rules of the panel's search.
namespace vesk::searchtext {

/// The query as typed, without spaces and tabs at either end; line breaks are kept.
[[nodiscard]] QString query(const QString &typed);

/// The form in which one text contains another exactly if a search finds it: UTF-8, case-folded by the rules
/// of the user's language, with each accented letter in a single form. Accents matter.
[[nodiscard]] QByteArray folded(const QString &text);
/// The same for a text in UTF-8.
[[nodiscard]] QByteArray folded(const QByteArray &utf8);

} // namespace vesk::searchtext
