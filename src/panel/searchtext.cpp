// SPDX-License-Identifier: MIT
#include "panel/searchtext.h"

#include <QLocale>

#include <algorithm>

namespace vesk::searchtext {

QString query(const QString &typed)
{
    const auto isSpace = [](QChar c) { return c == u'\t' || c.category() == QChar::Separator_Space; };
    const auto *const begin = std::find_if_not(typed.begin(), typed.end(), isSpace);
    const auto *const end = std::find_if_not(typed.rbegin(), typed.rend(), isSpace).base();
    return begin < end ? typed.sliced(begin - typed.begin(), end - begin) : QString();
}

QByteArray folded(const QString &text)
{
    // These languages pair the dotted and the dotless i; everywhere else the common folding holds.
    const QLocale locale;
    const bool isDotted = locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
    const QString lower = isDotted ? locale.toLower(text) : text.toCaseFolded();
    return lower.normalized(QString::NormalizationForm_C).toUtf8();
}

} // namespace vesk::searchtext
