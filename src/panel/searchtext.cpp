// SPDX-License-Identifier: MIT
#include "panel/searchtext.h"

#include <QLocale>

#include <algorithm>

namespace vesk::searchtext {

namespace {

/// Turkish and Azerbaijani pair the dotted and the dotless i; all other languages use the common folding.
bool hasDottedPairs(const QLocale &locale)
{
    return locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
}

bool isAscii(const QByteArray &utf8)
{
    return std::ranges::all_of(utf8, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

QString query(const QString &typed)
{
    const auto isSpace = [](QChar c) { return c == u'\t' || c.category() == QChar::Separator_Space; };
    const auto *const begin = std::find_if_not(typed.begin(), typed.end(), isSpace);
    const auto *const end = std::find_if_not(typed.rbegin(), typed.rend(), isSpace).base();
    return begin < end ? typed.sliced(begin - typed.begin(), end - begin) : QString();
}

QByteArray folded(const QString &text)
{
    const QLocale locale;
    const QString lower = hasDottedPairs(locale) ? locale.toLower(text) : text.toCaseFolded();
    return lower.normalized(QString::NormalizationForm_C).toUtf8();
}

QByteArray folded(const QByteArray &utf8)
{
    // The first search of many notes waits for this, and most texts are pure ASCII.
    if (isAscii(utf8) && !hasDottedPairs(QLocale()))
        return utf8.toLower();
    return folded(QString::fromUtf8(utf8));
}

} // namespace vesk::searchtext
