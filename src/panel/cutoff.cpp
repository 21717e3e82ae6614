// SPDX-License-Identifier: MIT
#include "panel/cutoff.h"

#include <QFontMetricsF>

namespace vesk {

namespace {

constexpr QChar kEllipsis(0x2026);

/// Punctuation that marks a pause or an end, in several scripts; not question and exclamation marks, which
/// carry meaning.
constexpr QStringView kPauses =
    u".,;:\u2026\u00b7\u2022\u2013\u2014-\u060c\u061b\u06d4\u3001\u3002\uff0c\uff1a\uff1b";

QStringView withoutPause(QStringView text)
{
    while (!text.isEmpty() && (text.back().isSpace() || kPauses.contains(text.back())))
        text.chop(1);
    return text;
}

} // namespace

QString cutOff(QStringView line, const QFont &font, qreal width)
{
    const QString whole = withoutPause(line).toString() + kEllipsis;
    const QString cut = QFontMetricsF(font).elidedText(whole, Qt::ElideRight, width);
    // If there is no room for even one letter, the result may be empty.
    return cut.endsWith(kEllipsis) ? withoutPause(cut).toString() + kEllipsis : cut;
}

} // namespace vesk
