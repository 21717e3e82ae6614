// SPDX-License-Identifier: MIT
#include "panel/matchtext.h"

#include "notes/linedirection.h"
#include "panel/cutoff.h"
#include "panel/highlight.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vesk {

MatchText::MatchText(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &MatchText::changed, this, &MatchText::layOut);
}

bool MatchText::isRightToLeft() const
{
    const std::optional<Qt::LayoutDirection> own = lineDirection(m_text);
    return own ? *own == Qt::RightToLeft : m_fallbackIsRightToLeft;
}

void MatchText::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    layOut();
}

void MatchText::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        layOut();
}

void MatchText::layOut()
{
    if (!isComponentComplete())
        return;
    QFont font = m_font;
    font.setStrikeOut(m_strikeOut);
    m_layout.setFont(font);
    Lines lines = breakLines(m_text);
    if (lines.end < m_text.size()) {
        const QStringView rest = QStringView(m_text).sliced(lines.lastStart);
        lines = breakLines(m_text.left(lines.lastStart) + cutOff(rest, font, std::max(1.0, width())));
    }
    setImplicitHeight(std::ceil(lines.height));
    update();
}

MatchText::Lines MatchText::breakLines(const QString &text)
{
    QTextOption option;
    option.setWrapMode(m_maximumLineCount > 1 ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                              : QTextOption::NoWrap);
    option.setTextDirection(isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    m_layout.setTextOption(option);
    m_layout.setText(text);

    Lines made;
    m_layout.beginLayout();
    for (int count = 0; count < m_maximumLineCount; ++count) {
        QTextLine line = m_layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(std::max(1.0, width()));
        if (count > 0)
            made.height += m_lineSpacing;
        line.setPosition(QPointF(0, made.height));
        made.height += line.height();
        made.lastStart = line.textStart();
        // A line that must not wrap holds the whole text, and shows what fits.
        const bool isWhole = m_maximumLineCount > 1 || line.naturalTextWidth() <= width();
        made.end = isWhole ? line.textStart() + line.textLength() : line.textStart();
    }
    m_layout.endLayout();
    return made;
}

void MatchText::paint(QPainter *painter)
{
    constexpr qreal kRadius = 3;
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_matchColor);
    for (const TextRange &range : matchRanges(m_layout.text(), m_query)) {
        for (int i = 0; i < m_layout.lineCount(); ++i) {
            const QTextLine line = m_layout.lineAt(i);
            const auto start = static_cast<int>(std::max<qsizetype>(range.start, line.textStart()));
            const auto end = static_cast<int>(
                std::min<qsizetype>(range.start + range.length, line.textStart() + line.textLength()));
            if (start >= end)
                continue;
            const qreal left = line.cursorToX(start);
            const qreal right = line.cursorToX(end);
            painter->drawRoundedRect(
                QRectF(QPointF(left, line.y()), QPointF(right, line.y() + line.height())).normalized(),
                kRadius, kRadius);
        }
    }
    painter->setPen(m_color);
    m_layout.draw(painter, QPointF());
}

} // namespace vesk
