// SPDX-License-Identifier: MIT
#include "components/theme.h"

#include "components/surroundings.h"
#include "platform/appearance.h"
#include "platform/windows.h"

#include <QGuiApplication>

namespace vesk {

namespace {

/// Sizes are pixels, so that the proportions of a view hold whatever resolution the desktop reports.
QFont font(int pixels, QFont::Weight weight = QFont::Normal)
{
    QFont made = QGuiApplication::font();
    made.setPixelSize(pixels);
    made.setWeight(weight);
    return made;
}

QColor withOpacity(QColor color, float opacity)
{
    color.setAlphaF(opacity);
    return color;
}

QColor over(const QColor &top, const QColor &bottom)
{
    const float share = top.alphaF();
    const auto mix = [share](float above, float below) { return above * share + below * (1 - share); };
    return QColor::fromRgbF(mix(top.redF(), bottom.redF()), mix(top.greenF(), bottom.greenF()),
                            mix(top.blueF(), bottom.blueF()));
}

} // namespace

Theme *Theme::create(QQmlEngine *engine, QJSEngine * /*scriptEngine*/)
{
    return new Theme(Surroundings::of(*engine), engine);
}

Theme::Theme(Surroundings &surroundings, QObject *parent)
    : QObject(parent)
    , m_surroundings(surroundings)
{
    connect(&surroundings.appearance(), &Appearance::changed, this, &Theme::update);
    connect(&surroundings.windows(), &Windows::compositedChanged, this, &Theme::compositedChanged);
    update();
}

void Theme::update()
{
    const Appearance &appearance = m_surroundings.appearance();
    m_isDark = appearance.colorScheme() == Appearance::ColorScheme::Dark;
    m_allowsMotion = !appearance.shouldReduceMotion();
    m_palette = palette(m_isDark, appearance.accentColor());
    Q_EMIT changed();
}

bool Theme::isComposited() const
{
    return m_surroundings.windows().isComposited();
}

QColor Theme::primaryAt(float opacity) const
{
    return withOpacity(m_palette.primary, opacity);
}

QColor Theme::clearBackground() const
{
    return withOpacity(m_palette.background, 0);
}

QColor Theme::faintFill() const
{
    return primaryAt(0.045F);
}

QColor Theme::fill() const
{
    return primaryAt(m_isDark ? 0.08F : 0.06F);
}

QColor Theme::edge() const
{
    return primaryAt(0.08F);
}

QColor Theme::strongEdge() const
{
    return primaryAt(0.12F);
}

QColor Theme::neutralTile() const
{
    return primaryAt(0.15F);
}

QColor Theme::selectionFill() const
{
    return withOpacity(m_palette.accent, m_isDark ? 0.18F : 0.10F);
}

QColor Theme::textSelection() const
{
    return withOpacity(m_palette.accent, m_isDark ? 0.45F : 0.28F);
}

QColor Theme::matchFill() const
{
    return QColor(0xff, 0xcc, 0x00, 0x73);
}

QColor Theme::opaqueEdge() const
{
    return over(strongEdge(), m_palette.background);
}

QFont Theme::headlineFont()
{
    return font(17, QFont::DemiBold);
}

QFont Theme::titleFont()
{
    return font(14, QFont::DemiBold);
}

QFont Theme::fieldFont()
{
    return font(14);
}

QFont Theme::bodyFont()
{
    return font(13);
}

QFont Theme::strongBodyFont()
{
    return font(13, QFont::DemiBold);
}

QFont Theme::smallFont()
{
    return font(12);
}

QFont Theme::strongSmallFont()
{
    return font(12, QFont::DemiBold);
}

QFont Theme::captionFont()
{
    return font(11);
}

QFont Theme::sectionFont()
{
    QFont made = font(11, QFont::DemiBold);
    made.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    made.setCapitalization(QFont::AllUppercase);
    return made;
}

QFont Theme::countFont()
{
    return font(10, QFont::DemiBold);
}

QFont Theme::keyFont()
{
    return font(12, QFont::Medium);
}

int Theme::springDuration() const
{
    return m_allowsMotion ? 500 : 0;
}

int Theme::pressDuration() const
{
    return m_allowsMotion ? 360 : 0;
}

QVariantList Theme::springCurve()
{
    // Follows 1 - (1 + wt) * exp(-wt) with w = 2 pi / 0.35 s over the spring's duration, in which it
    // comes to rest.
    return {0.33, 0.684, 0.127, 1, 1, 1};
}

} // namespace vesk
