// SPDX-License-Identifier: MIT
#include "panel/matchmarks.h"

#include "panel/highlight.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

namespace vesk {

MatchMarks::MatchMarks(QObject *parent)
    : QObject(parent)
{
    connect(this, &MatchMarks::changed, this, &MatchMarks::markAnew);
}

void MatchMarks::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    if (document)
        connect(document->textDocument(), &QTextDocument::contentsChange, this, &MatchMarks::mark);
    Q_EMIT changed();
}

/// During a change of the text, after which the marked parts are laid out and painted along with it.
void MatchMarks::mark()
{
    if (!m_document || (m_query.isEmpty() && !m_hasMarks))
        return;
    m_hasMarks = !m_query.isEmpty();
    QTextDocument &text = *m_document->textDocument();
    QTextCharFormat format;
    format.setBackground(m_color);
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        QList<QTextLayout::FormatRange> formats;
        for (const TextRange &range : matchRanges(block.text(), m_query)) {
            formats.append({.start = static_cast<int>(range.start),
                            .length = static_cast<int>(range.length),
                            .format = format});
        }
        block.layout()->setFormats(formats);
    }
    // All at once: doing it for each block would lay out the text each time.
    text.markContentsDirty(0, text.characterCount());
}

void MatchMarks::markAnew()
{
    if (!m_document)
        return;
    // An empty change, without which the item would not repaint.
    QTextCursor cursor(m_document->textDocument());
    cursor.beginEditBlock();
    mark();
    cursor.endEditBlock();
}

} // namespace vesk
