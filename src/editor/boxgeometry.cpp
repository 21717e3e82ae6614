// SPDX-License-Identifier: MIT
#include "editor/boxgeometry.h"

#include "editor/editrules.h"
#include "editor/notetext.h"
#include "notes/markup.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace vesk::boxgeometry {

namespace {

constexpr qreal kSize = 17;
/// How far beside and above the glyph a click still counts.
constexpr qreal kBeside = 4;
constexpr qreal kAbove = 3;

/// The last paragraph that begins at or above this height, otherwise the first. A binary search: the layout's
/// own search would scan a long text paragraph by paragraph.
QTextBlock blockAt(const NoteText &text, qreal y)
{
    const QTextDocument &document = text.document();
    int first = 0;
    int beyond = document.blockCount();
    while (beyond - first > 1) {
        const int middle = (first + beyond) / 2;
        const bool isAbove = document.findBlockByNumber(middle).layout()->position().y() <= y;
        (isAbove ? first : beyond) = middle;
    }
    return document.findBlockByNumber(first);
}

bool hasBox(const NoteText &text, const QTextBlock &block)
{
    return block.isValid() && block.layout()->lineCount() > 0 && editrules::startsWithBox(text.line(block));
}

bool isRightToLeft(const QTextBlock &block)
{
    return block.blockFormat().layoutDirection() == Qt::RightToLeft;
}

QRectF glyphRectangle(const QTextBlock &block)
{
    const QTextLine line = block.layout()->lineAt(0);
    const QPointF origin = block.layout()->position();
    // In a right-to-left paragraph the glyph's leading edge is its right one.
    const qreal first = line.cursorToX(0);
    const qreal second = line.cursorToX(0, QTextLine::Trailing);
    return {origin.x() + std::min(first, second), origin.y() + line.y(), std::abs(second - first),
            line.ascent() + line.descent()};
}

Box box(const NoteText &text, const QTextBlock &block, qreal size)
{
    const QRectF glyph = glyphRectangle(block);
    const QStringView line = text.line(block);
    // Close to the paragraph's edge; the rest of the glyph's width is the distance to the text.
    const qreal left = isRightToLeft(block) ? glyph.right() - 1 - size : glyph.x() + 1;
    return {.position = block.position(),
            .square = QRectF(left, glyph.y() + (glyph.height() - size) / 2, size, size),
            .isTicked = line.front() == markup::kTicked.front(),
            .label = line.sliced(1).trimmed().toString()};
}

} // namespace

QList<Box> boxesBetween(const NoteText &text, qreal top, qreal bottom, qreal scale)
{
    QList<Box> boxes;
    for (QTextBlock block = blockAt(text, top); block.isValid(); block = block.next()) {
        if (block.layout()->position().y() > bottom)
            break;
        if (hasBox(text, block))
            boxes.append(box(text, block, kSize * scale));
    }
    return boxes;
}

std::optional<qsizetype> findBox(const NoteText &text, const QPointF &point)
{
    const QTextBlock nearest = blockAt(text, point.y());
    for (const QTextBlock &block : {nearest, nearest.previous(), nearest.next()}) {
        if (hasBox(text, block)
            && glyphRectangle(block).adjusted(-kBeside, -kAbove, kBeside, kAbove).contains(point))
            return block.position();
    }
    return std::nullopt;
}

} // namespace vesk::boxgeometry
