// SPDX-License-Identifier: MIT
#include "components/themefonts.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace vesk {

ThemeFonts::ThemeFonts(QObject *parent)
    : QObject(parent)
{
}

void ThemeFonts::setTextFont(const Appearance::TextFont &textFont)
{
    m_textFont = textFont;
    Q_EMIT changed();
}

QFont ThemeFonts::font(qreal pixels, QFont::Weight weight) const
{
    QFont made = QGuiApplication::font();
    if (!m_textFont.family.isEmpty())
        made.setFamily(m_textFont.family);
    made.setPixelSize(qRound(pixels * m_textFont.scale));
    made.setWeight(weight);
    return made;
}

QFont ThemeFonts::welcome() const
{
    QFont made = font(22, QFont::Bold);
    made.setLetterSpacing(QFont::AbsoluteSpacing, -0.3);
    return made;
}

QFont ThemeFonts::section() const
{
    QFont made = font(11, QFont::DemiBold);
    made.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    made.setCapitalization(QFont::AllUppercase);
    return made;
}

qreal ThemeFonts::digitsWidth(const QFont &font, int count)
{
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return std::ceil(widest * count);
}

} // namespace vesk
