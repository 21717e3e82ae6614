// SPDX-License-Identifier: MIT
#pragma once

#include "editor/linestyle.h"

#include <QColor>
#include <QTextCharFormat>
#include <QTextLayout>

#include <array>

namespace vesk {

/// The parameters of an editor's appearance. Sizes are in pixels, before the user's text scale.
struct TextLook
{
    qreal scale = 1;
    qreal fontSize = 14;
    qreal titleBoost = 7;
    int titleWeight = QFont::Bold;
    QColor secondary;
    QColor tertiary;
    QColor quaternary;
    QColor accent;

    friend bool operator==(const TextLook &, const TextLook &) = default;
};

/// The character formats of the styles. They are marked, to distinguish them from those that an input method
/// applies to the text it composes.
class TextFormats final
{
public:
    explicit TextFormats(const TextLook &look);

    [[nodiscard]] const QTextCharFormat &format(TextStyle style) const
    {
        return m_formats.at(static_cast<size_t>(style));
    }
    /// The formats of a line as a layout expects them.
    [[nodiscard]] QList<QTextLayout::FormatRange> ranges(QStringView line, bool isTitle) const;

    [[nodiscard]] static bool isOurs(const QTextCharFormat &format);
    /// Lines within a paragraph are 3 pixels apart, paragraphs 5 pixels more.
    [[nodiscard]] static QTextBlockFormat paragraph(Qt::LayoutDirection direction);

private:
    std::array<QTextCharFormat, kTextStyles> m_formats;
};

} // namespace vesk
