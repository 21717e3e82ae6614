// SPDX-License-Identifier: MIT
#include "components/theme.h"

#include "components/surroundings.h"
#include "platform/windows.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>

namespace vesk {

namespace {

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
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &Theme::mirroredChanged);
    update();
}

bool Theme::isMirrored()
{
    return QGuiApplication::isRightToLeft();
}

void Theme::update()
{
    const Appearance &appearance = m_surroundings.appearance();
    m_colors = {.isDark = appearance.colorScheme() == Appearance::ColorScheme::Dark,
                .hasHighContrast = appearance.shouldIncreaseContrast(),
                .accent = appearance.accentColor()};
    m_motion.setAllowed(!appearance.shouldReduceMotion());
    m_fonts.setTextFont(appearance.textFont());
    m_palette = palette(m_colors);
    if (const auto flashTime = appearance.cursorFlashTime())
        QGuiApplication::styleHints()->setCursorFlashTime(static_cast<int>(flashTime->count()));
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

QColor Theme::lineAt(float opacity) const
{
    return primaryAt(std::min(1.0F, opacity * m_palette.lineStrength));
}

QColor Theme::faintFill() const
{
    return primaryAt(0.045F);
}

QColor Theme::fill() const
{
    return primaryAt(m_colors.isDark ? 0.08F : 0.06F);
}

QColor Theme::capFill() const
{
    return primaryAt(0.05F);
}

QColor Theme::capEdge() const
{
    return lineAt(0.10F);
}

QColor Theme::raised() const
{
    return m_colors.isDark && !m_colors.hasHighContrast ? over(primaryAt(0.09F), m_palette.background)
                                                        : m_palette.background;
}

QColor Theme::edge() const
{
    return lineAt(0.08F);
}

QColor Theme::strongEdge() const
{
    return lineAt(0.12F);
}

QColor Theme::track() const
{
    // If it were as strong as a line, it would look like the filled part.
    return primaryAt(m_colors.hasHighContrast ? 0.22F : 0.12F);
}

QColor Theme::neutralTile() const
{
    return primaryAt(0.15F);
}

QColor Theme::accentTile() const
{
    return withOpacity(m_palette.accent, 0.12F);
}

QColor Theme::selectionFill() const
{
    return withOpacity(m_palette.accent, m_colors.isDark ? 0.18F : 0.10F);
}

QColor Theme::selectionGround() const
{
    return over(selectionFill(), m_palette.background);
}

QColor Theme::textSelection() const
{
    return withOpacity(m_palette.accent, m_colors.isDark ? 0.45F : 0.28F);
}

QColor Theme::matchFill() const
{
    return QColor(0xff, 0xcc, 0x00, 0x73);
}

QColor Theme::opaqueEdge() const
{
    return over(strongEdge(), m_palette.background);
}

} // namespace vesk
