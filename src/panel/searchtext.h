// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// What a search in the panel goes by.
namespace vesk::searchtext {

/// What the user has typed, without spaces and tabs at both ends; line breaks stay.
[[nodiscard]] QString query(const QString &typed);

/// A text in the form in which one contains another exactly if a search finds it: UTF-8, case aside
/// by the rules of the user's language, each accented letter in its one form. Accents count.
[[nodiscard]] QByteArray folded(const QString &text);
/// The same of a text in UTF-8.
[[nodiscard]] QByteArray folded(const QByteArray &utf8);

} // namespace vesk::searchtext
