// SPDX-License-Identifier: MIT
#pragma once

#include "components/palette.h"
#include "components/themefonts.h"
#include "components/thememotion.h"

#include <QObject>
#include <QQmlEngine>

namespace vesk {

class Surroundings;

/// The only source of colours, fonts, spacing and motion for every view of an engine. Follows the user's
/// desktop preferences.
class Theme final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Whether lines and texts must stand out strongly.
    Q_PROPERTY(bool hasHighContrast READ hasHighContrast NOTIFY changed)
    /// Whether a compositor is running, so that windows may be translucent.
    Q_PROPERTY(bool isComposited READ isComposited NOTIFY compositedChanged)
    /// Whether the layout is mirrored for a right-to-left language.
    Q_PROPERTY(bool isMirrored READ isMirrored NOTIFY mirroredChanged)

    Q_PROPERTY(QColor background READ background NOTIFY changed)
    Q_PROPERTY(QColor primary READ primary NOTIFY changed)
    Q_PROPERTY(QColor secondary READ secondary NOTIFY changed)
    Q_PROPERTY(QColor tertiary READ tertiary NOTIFY changed)
    Q_PROPERTY(QColor quaternary READ quaternary NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    /// The accent colour as a background for text and symbols, which use `onAccent`.
    Q_PROPERTY(QColor accentFill READ accentFill NOTIFY changed)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed)
    Q_PROPERTY(QColor attention READ attention NOTIFY changed)
    Q_PROPERTY(QColor attentionText READ attentionText NOTIFY changed)
    /// Confirmation that all is well; readable as small text.
    Q_PROPERTY(QColor success READ success NOTIFY changed)
    /// The primary colour at the opacities used for fills and lines.
    Q_PROPERTY(QColor faintFill READ faintFill NOTIFY changed)
    Q_PROPERTY(QColor fill READ fill NOTIFY changed)
    Q_PROPERTY(QColor capFill READ capFill NOTIFY changed)
    Q_PROPERTY(QColor capEdge READ capEdge NOTIFY changed)
    /// The background of what covers a window's content, such as a menu or a line of help.
    Q_PROPERTY(QColor raised READ raised NOTIFY changed)
    Q_PROPERTY(QColor edge READ edge NOTIFY changed)
    Q_PROPERTY(QColor strongEdge READ strongEdge NOTIFY changed)
    /// The unfilled part of a gauge; the filled part is in the accent colour.
    Q_PROPERTY(QColor track READ track NOTIFY changed)
    Q_PROPERTY(QColor neutralTile READ neutralTile NOTIFY changed)
    /// The background of a symbol in the accent colour.
    Q_PROPERTY(QColor accentTile READ accentTile NOTIFY changed)
    Q_PROPERTY(QColor selectionFill READ selectionFill NOTIFY changed)
    /// The opaque equivalent of a selected card's fill on the background.
    Q_PROPERTY(QColor selectionGround READ selectionGround NOTIFY changed)
    Q_PROPERTY(QColor textSelection READ textSelection NOTIFY changed)
    Q_PROPERTY(QColor matchFill READ matchFill NOTIFY changed)
    /// The edge of a window that is not translucent.
    Q_PROPERTY(QColor opaqueEdge READ opaqueEdge NOTIFY changed)

    Q_PROPERTY(vesk::ThemeFonts *fonts READ fonts CONSTANT)
    Q_PROPERTY(vesk::ThemeMotion *motion READ motion CONSTANT)

    Q_PROPERTY(qreal tightSpace MEMBER kTightSpace CONSTANT)
    Q_PROPERTY(qreal smallSpace MEMBER kSmallSpace CONSTANT)
    Q_PROPERTY(qreal space MEMBER kSpace CONSTANT)
    Q_PROPERTY(qreal wideSpace MEMBER kWideSpace CONSTANT)
    Q_PROPERTY(qreal margin MEMBER kMargin CONSTANT)
    Q_PROPERTY(qreal plateRadius MEMBER kPlateRadius CONSTANT)
    Q_PROPERTY(qreal cardRadius MEMBER kCardRadius CONSTANT)

public:
    static Theme *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    [[nodiscard]] bool hasHighContrast() const { return m_colors.hasHighContrast; }
    [[nodiscard]] bool isComposited() const;
    [[nodiscard]] static bool isMirrored();
    [[nodiscard]] QColor background() const { return m_palette.background; }
    [[nodiscard]] QColor primary() const { return m_palette.primary; }
    [[nodiscard]] QColor secondary() const { return m_palette.secondary; }
    [[nodiscard]] QColor tertiary() const { return m_palette.tertiary; }
    [[nodiscard]] QColor quaternary() const { return m_palette.quaternary; }
    [[nodiscard]] QColor accent() const { return m_palette.accent; }
    [[nodiscard]] QColor accentFill() const { return m_palette.accentFill; }
    [[nodiscard]] QColor onAccent() const { return m_palette.onAccent; }
    [[nodiscard]] QColor attention() const { return m_palette.attention; }
    [[nodiscard]] QColor attentionText() const { return m_palette.attentionText; }
    [[nodiscard]] QColor success() const { return m_palette.success; }
    [[nodiscard]] QColor faintFill() const;
    [[nodiscard]] QColor fill() const;
    [[nodiscard]] QColor capFill() const;
    [[nodiscard]] QColor capEdge() const;
    [[nodiscard]] QColor raised() const;
    [[nodiscard]] QColor edge() const;
    [[nodiscard]] QColor strongEdge() const;
    [[nodiscard]] QColor track() const;
    [[nodiscard]] QColor neutralTile() const;
    [[nodiscard]] QColor accentTile() const;
    [[nodiscard]] QColor selectionFill() const;
    [[nodiscard]] QColor selectionGround() const;
    [[nodiscard]] QColor textSelection() const;
    [[nodiscard]] QColor matchFill() const;
    [[nodiscard]] QColor opaqueEdge() const;

    [[nodiscard]] ThemeFonts *fonts() { return &m_fonts; }
    [[nodiscard]] ThemeMotion *motion() { return &m_motion; }

Q_SIGNALS:
    void changed();
    void compositedChanged();
    void mirroredChanged();

private:
    Theme(Surroundings &surroundings, QObject *parent);

    void update();
    [[nodiscard]] QColor primaryAt(float opacity) const;
    [[nodiscard]] QColor lineAt(float opacity) const;

    static constexpr qreal kTightSpace = 4;
    static constexpr qreal kSmallSpace = 6;
    static constexpr qreal kSpace = 8;
    static constexpr qreal kWideSpace = 10;
    static constexpr qreal kMargin = 14;
    static constexpr qreal kPlateRadius = 18;
    static constexpr qreal kCardRadius = 16;

    Surroundings &m_surroundings;
    ColorChoice m_colors;
    ThemeFonts m_fonts{this};
    ThemeMotion m_motion{this};
    Palette m_palette;
};

} // namespace vesk
