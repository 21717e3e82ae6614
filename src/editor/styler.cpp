// SPDX-License-Identifier: MIT
#include "editor/styler.h"

#include "editor/notetext.h"

#include <QTextCursor>
#include <QTextDocument>

#include <utility>

namespace vesk {

namespace {

/// Attached to the title's block to notice when the block is destroyed. A QTextBlock cannot tell: a removed
/// one still counts as valid, and may be another block by then.
class TitleMark final : public QTextBlockUserData
{
public:
    explicit TitleMark(std::weak_ptr<QTextBlock> title)
        : m_title(std::move(title))
    {
    }

    Q_DISABLE_COPY_MOVE(TitleMark)

    ~TitleMark() override
    {
        if (const std::shared_ptr<QTextBlock> title = m_title.lock())
            *title = QTextBlock();
    }

private:
    std::weak_ptr<QTextBlock> m_title;
};

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
    markTitle(findTitle());
    // A single edit, so that everything is laid out once.
    QTextCursor cursor(&m_text.document());
    cursor.beginEditBlock();
    for (QTextBlock block = m_text.document().begin(); block.isValid(); block = block.next())
        restyle(block);
    cursor.endEditBlock();
}

void Styler::restyle(int position, int length)
{
    const QTextBlock former = *m_title;
    const QTextBlock title = findTitle();
    if (former != title) {
        markTitle(title);
        if (former.isValid())
            restyle(former);
        if (title.isValid())
            restyle(title);
    }
    QTextBlock block = m_text.document().findBlock(position);
    for (; block.isValid() && block.position() <= position + length; block = block.next())
        restyle(block);
}

QList<QTextLayout::FormatRange> Styler::wanted(const QTextBlock &block) const
{
    const QTextLayout &layout = *block.layout();
    const bool isTitle = block == *m_title;
    if (!isComposing(layout))
        return m_formats.ranges(m_text.line(block), isTitle);

    QList<QTextLayout::FormatRange> ranges = m_formats.ranges(m_text.composedLine(block), isTitle);
    for (const QTextLayout::FormatRange &range : layout.formats()) {
        if (!TextFormats::isOurs(range.format))
            ranges.append(range);
    }
    return ranges;
}

void Styler::restyle(const QTextBlock &block) const
{
    const QList<QTextLayout::FormatRange> ranges = wanted(block);
    // Setting formats makes the paragraph be laid out again.
    if (ranges != block.layout()->formats())
        block.layout()->setFormats(ranges);
}

void Styler::markTitle(const QTextBlock &title)
{
    if (*m_title == title)
        return;
    // Destroys the previous mark, which reports that there is no title.
    if (m_title->isValid())
        QTextBlock(*m_title).setUserData(nullptr);
    if (!title.isValid())
        return;
    *m_title = title;
    QTextBlock(title).setUserData(new TitleMark(m_title));
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
