// SPDX-License-Identifier: MIT
#include "editor/paragraphdirections.h"

#include "notes/linedirection.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace vesk {

namespace {

/// The line including the text being composed in it, as the user sees it.
QString composedLine(const QTextBlock &block)
{
    const QTextLayout &layout = *block.layout();
    return block.text().insert(layout.preeditAreaPosition(), layout.preeditAreaText());
}

void setDirection(QTextCursor &cursor, const QTextBlock &block, Qt::LayoutDirection direction)
{
    QTextBlockFormat format = block.blockFormat();
    format.setLayoutDirection(direction);
    cursor.setPosition(block.position());
    cursor.setBlockFormat(format);
}

} // namespace

ParagraphDirections::ParagraphDirections(QTextDocument &document)
    : m_document(document)
{
}

void ParagraphDirections::touch(int position, int length)
{
    const auto [start, end] = m_touched.value_or(std::pair(position, position));
    m_touched = {std::min(start, position), std::max(end, position + length)};
}

void ParagraphDirections::apply()
{
    if (!m_touched)
        return;
    const auto [start, end] = *std::exchange(m_touched, std::nullopt);
    QTextBlock block = m_document.findBlock(start);
    Qt::LayoutDirection direction = block.previous().isValid()
                                        ? block.previous().blockFormat().layoutDirection()
                                        : QGuiApplication::layoutDirection();
    QTextCursor cursor(&m_document);
    bool isEditing = false;
    for (; block.isValid(); block = block.next()) {
        const std::optional<Qt::LayoutDirection> own = lineDirection(composedLine(block));
        direction = own.value_or(direction);
        const bool isRight = block.blockFormat().layoutDirection() == direction;
        // After the touched part, only lines without a direction of their own can be wrong.
        if (block.position() > end && (own || isRight))
            break;
        if (isRight)
            continue;
        // Ending an edit is reported as a change even if nothing was edited, so only begin one if there is
        // something to edit.
        if (!std::exchange(isEditing, true))
            cursor.beginEditBlock();
        setDirection(cursor, block, direction);
    }
    if (isEditing)
        cursor.endEditBlock();
}

} // namespace vesk
