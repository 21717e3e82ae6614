// SPDX-License-Identifier: MIT
#include "editor/styler.h"

#include "editor/notetext.h"

#include <QTextCursor>
#include <QTextDocument>

namespace vesk {

namespace {

/// The line as it is seen, with what is being composed in it.
QString composed(QStringView line, const QTextLayout &layout)
{
    QString made = line.toString();
    return made.insert(layout.preeditAreaPosition(), layout.preeditAreaText());
}

bool isComposing(const QTextLayout &layout)
{
    return !layout.preeditAreaText().isEmpty();
}

} // namespace

Styler::Styler(const NoteText &text)
    : m_text(text)
{
}

void Styler::setLook(const TextLook &look, bool firstLineIsTitle)
{
    m_formats = TextFormats(look);
    m_firstLineIsTitle = firstLineIsTitle;
    m_title = findTitle();
    // One change for all of it, so that everything is laid out once.
    QTextCursor cursor(&m_text.document());
    cursor.beginEditBlock();
    for (QTextBlock block = m_text.document().begin(); block.isValid(); block = block.next())
        restyle(block);
    cursor.endEditBlock();
}

void Styler::restyle(int position, int length)
{
    const QTextBlock former = m_title;
    m_title = findTitle();
    if (former.isValid() && former != m_title)
        restyle(former);
    if (m_title.isValid() && former != m_title)
        restyle(m_title);
    QTextBlock block = m_text.document().findBlock(position);
    for (; block.isValid() && block.position() <= position + length; block = block.next())
        restyle(block);
}

QList<QTextLayout::FormatRange> Styler::wanted(const QTextBlock &block) const
{
    const QTextLayout &layout = *block.layout();
    const QStringView line = m_text.line(block);
    const bool isTitle = block == m_title;
    if (!isComposing(layout))
        return m_formats.ranges(line, isTitle);

    QList<QTextLayout::FormatRange> ranges = m_formats.ranges(composed(line, layout), isTitle);
    for (const QTextLayout::FormatRange &range : layout.formats()) {
        if (!TextFormats::isOurs(range.format))
            ranges.append(range);
    }
    return ranges;
}

void Styler::restyle(const QTextBlock &block) const
{
    const QList<QTextLayout::FormatRange> ranges = wanted(block);
    // Setting formats has the paragraph laid out again.
    if (ranges != block.layout()->formats())
        block.layout()->setFormats(ranges);
}

QTextBlock Styler::findTitle() const
{
    if (!m_firstLineIsTitle)
        return {};
    QTextBlock block = m_text.document().begin();
    while (block.isValid()) {
        const QTextLayout &layout = *block.layout();
        if (hasContent(m_text.line(block)) || (isComposing(layout) && hasContent(layout.preeditAreaText())))
            break;
        block = block.next();
    }
    return block;
}

} // namespace vesk
