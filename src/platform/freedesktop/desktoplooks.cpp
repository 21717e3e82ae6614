// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktoplooks.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// Words that may appear between a family and its size.
constexpr std::array kStyles{
    "thin"_L1,   "ultra-light"_L1, "extra-light"_L1, "light"_L1,         "semi-light"_L1, "demi-light"_L1,
    "book"_L1,   "regular"_L1,     "normal"_L1,      "medium"_L1,        "semi-bold"_L1,  "demi-bold"_L1,
    "bold"_L1,   "ultra-bold"_L1,  "extra-bold"_L1,  "heavy"_L1,         "black"_L1,      "roman"_L1,
    "italic"_L1, "oblique"_L1,     "condensed"_L1,   "semi-condensed"_L1};

bool isStyle(const QString &word)
{
    return std::ranges::any_of(
        kStyles, [&word](QLatin1StringView style) { return word.compare(style, Qt::CaseInsensitive) == 0; });
}

/// Desktops default to 10 or 11 points; only other sizes have been chosen by somebody.
qreal scaleOf(qreal points)
{
    constexpr qreal kSmallest = 10;
    constexpr qreal kLargest = 11;
    if (points > kLargest)
        return std::min(points / kLargest, 1.6);
    return std::max(std::min(points / kSmallest, 1.0), 0.8);
}

} // namespace

std::optional<Appearance::TextFont> textFontFrom(const QString &description)
{
    QStringList words = description.split(u' ', Qt::SkipEmptyParts);
    if (words.size() < 2)
        return std::nullopt;
    bool isNumber = false;
    const qreal points = words.takeLast().toDouble(&isNumber);
    if (!isNumber || points <= 0)
        return std::nullopt;
    while (words.size() > 1 && isStyle(words.last()))
        words.removeLast();
    QString family = words.join(u' ');
    // Use the first of a comma-separated list; a single family may end in a comma, too.
    family = family.section(u',', 0, 0);
    return Appearance::TextFont{.family = family, .scale = scaleOf(points)};
}

bool isDarkTheme(const QString &name)
{
    return name.contains("dark"_L1, Qt::CaseInsensitive) || name.endsWith("Inverse"_L1, Qt::CaseInsensitive);
}

bool isHighContrastTheme(const QString &name)
{
    return name.startsWith("HighContrast"_L1, Qt::CaseInsensitive)
           || name.startsWith("ContrastHigh"_L1, Qt::CaseInsensitive);
}

} // namespace vesk
