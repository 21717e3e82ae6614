// SPDX-License-Identifier: MIT
#include "editor/textformats.h"

#include <QFontDatabase>

namespace vesk {

namespace {

constexpr int kOurs = QTextFormat::UserProperty + 1;

/// The family of a font that contains only blank space for the two checkboxes. With the desktop's fonts, a
/// checkbox's width and its line's height would depend on which font happens to have the glyph, and a colour
/// font would paint it.
const QString &boxFamily()
{
    static const QString family = [] {
        const int font = QFontDatabase::addApplicationFont(QStringLiteral(":/vesk/editor/boxes.ttf"));
        const QStringList families = QFontDatabase::applicationFontFamilies(font);
        return families.isEmpty() ? QString() : families.constFirst();
    }();
    return family;
}

QTextCharFormat sized(qreal size, int weight)
{
    QTextCharFormat made;
    made.setProperty(kOurs, true);
    // The toolkit only draws text of whole pixel sizes.
    made.setProperty(QTextFormat::FontPixelSize, qRound(size));
    made.setFontWeight(weight);
    return made;
}

QTextCharFormat coloured(const QColor &color)
{
    QTextCharFormat made;
    made.setProperty(kOurs, true);
    made.setForeground(color);
    return made;
}

QTextCharFormat box(qreal size)
{
    QTextCharFormat made = sized(size, QFont::Light);
    made.setForeground(QColor(Qt::transparent));
    made.setFontFamilies({boxFamily()});
    made.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    made.setFontLetterSpacing(3);
    return made;
}

QTextCharFormat bullet(qreal size, const QColor &color)
{
    QTextCharFormat made = sized(size, QFont::Bold);
    made.setForeground(color);
    return made;
}

QTextCharFormat done(const QColor &color)
{
    QTextCharFormat made = coloured(color);
    made.setFontStrikeOut(true);
    return made;
}

} // namespace

TextFormats::TextFormats(const TextLook &look)
{
    const auto put = [this](TextStyle style, const QTextCharFormat &format) {
        m_formats.at(static_cast<size_t>(style)) = format;
    };
    const qreal size = look.fontSize * look.scale;
    const qreal titleSize = (look.fontSize + look.titleBoost) * look.scale;
    put(TextStyle::Title, sized(titleSize, look.titleWeight));
    put(TextStyle::Heading, sized((look.fontSize + 3) * look.scale, QFont::DemiBold));
    put(TextStyle::HeadingMarker, coloured(look.tertiary));
    put(TextStyle::Bullet, bullet(size, look.accent));
    put(TextStyle::TitleBullet, bullet(titleSize, look.accent));
    put(TextStyle::Box, box((look.fontSize + 5) * look.scale));
    put(TextStyle::Done, done(look.secondary));
    put(TextStyle::Bold, sized(size, QFont::Bold));
    put(TextStyle::BoldMarks, coloured(look.quaternary));
}

QList<QTextLayout::FormatRange> TextFormats::ranges(QStringView line, bool isTitle) const
{
    const QList<StyledPart> parts = styledParts(line, isTitle);
    QList<QTextLayout::FormatRange> ranges;
    ranges.reserve(parts.size());
    for (const StyledPart &part : parts) {
        ranges.append({.start = static_cast<int>(part.start),
                       .length = static_cast<int>(part.length),
                       .format = format(part.style)});
    }
    return ranges;
}

bool TextFormats::isOurs(const QTextCharFormat &format)
{
    return format.hasProperty(kOurs);
}

QTextBlockFormat TextFormats::paragraph(Qt::LayoutDirection direction)
{
    QTextBlockFormat made;
    made.setLineHeight(3, QTextBlockFormat::LineDistanceHeight);
    made.setBottomMargin(5);
    // The side where the paragraph's direction begins, whatever the text item takes for the direction of the
    // whole text.
    made.setAlignment(Qt::AlignLeft);
    made.setLayoutDirection(direction);
    return made;
}

} // namespace vesk
