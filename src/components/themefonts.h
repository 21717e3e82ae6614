// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

#include <QFont>
#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// The fonts of every view, following the user's text size. Owned by the theme.
class ThemeFonts final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of the theme.")

    /// The user's text scale; whatever holds one line of text grows with it.
    Q_PROPERTY(qreal scale READ scale NOTIFY changed)

    Q_PROPERTY(QFont welcome READ welcome NOTIFY changed)
    Q_PROPERTY(QFont headline READ headline NOTIFY changed)
    Q_PROPERTY(QFont title READ title NOTIFY changed)
    Q_PROPERTY(QFont field READ field NOTIFY changed)
    Q_PROPERTY(QFont body READ body NOTIFY changed)
    Q_PROPERTY(QFont strongBody READ strongBody NOTIFY changed)
    Q_PROPERTY(QFont mediumBody READ mediumBody NOTIFY changed)
    Q_PROPERTY(QFont hint READ hint NOTIFY changed)
    Q_PROPERTY(QFont small READ small NOTIFY changed)
    Q_PROPERTY(QFont strongSmall READ strongSmall NOTIFY changed)
    Q_PROPERTY(QFont caption READ caption NOTIFY changed)
    Q_PROPERTY(QFont strongCaption READ strongCaption NOTIFY changed)
    Q_PROPERTY(QFont section READ section NOTIFY changed)
    Q_PROPERTY(QFont count READ count NOTIFY changed)
    Q_PROPERTY(QFont key READ key NOTIFY changed)

public:
    explicit ThemeFonts(QObject *parent);

    void setTextFont(const Appearance::TextFont &textFont);

    /// The width of `count` digits in a font, whichever digits they are.
    [[nodiscard]] Q_INVOKABLE static qreal digitsWidth(const QFont &font, int count);

    [[nodiscard]] qreal scale() const { return m_textFont.scale; }
    [[nodiscard]] QFont welcome() const;
    [[nodiscard]] QFont headline() const { return font(17, QFont::DemiBold); }
    [[nodiscard]] QFont title() const { return font(14, QFont::DemiBold); }
    [[nodiscard]] QFont field() const { return font(14); }
    [[nodiscard]] QFont body() const { return font(13); }
    [[nodiscard]] QFont strongBody() const { return font(13, QFont::DemiBold); }
    [[nodiscard]] QFont mediumBody() const { return font(13, QFont::Medium); }
    [[nodiscard]] QFont hint() const { return font(12.5); }
    [[nodiscard]] QFont small() const { return font(12); }
    [[nodiscard]] QFont strongSmall() const { return font(12, QFont::DemiBold); }
    [[nodiscard]] QFont caption() const { return font(11); }
    [[nodiscard]] QFont strongCaption() const { return font(11, QFont::DemiBold); }
    [[nodiscard]] QFont section() const;
    [[nodiscard]] QFont count() const { return font(10, QFont::DemiBold); }
    [[nodiscard]] QFont key() const { return font(12, QFont::Medium); }

Q_SIGNALS:
    void changed();

private:
    /// Sizes are in pixels, so that a view keeps its proportions whatever resolution the desktop reports.
    [[nodiscard]] QFont font(qreal pixels, QFont::Weight weight = QFont::Normal) const;

    Appearance::TextFont m_textFont;
};

} // namespace vesk
