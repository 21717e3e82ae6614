// SPDX-License-Identifier: MIT
#include "editor/notetext.h"

#include "editor/editrules.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace vesk {

namespace {

/// Invisible, and as long as the character that it stands for.
constexpr QChar kInvisible(u'\u200b');

QChar shown(QChar character)
{
    if (editrules::isLineBreak(character))
        return QChar::ParagraphSeparator;
    switch (character.unicode()) {
    case u'\r':     // would break the line
    case u'\ufdd0': // the document's own marks of frames
    case u'\ufdd1':
    case u'\ufffc': // would be a picture: its whole line is not painted
        return kInvisible;
    default:
        return character;
    }
}

QString shown(const QString &text)
{
    QString made = text;
    std::ranges::transform(made, made.begin(), [](QChar character) { return shown(character); });
    return made;
}

/// The text that editing has put into the document; a paragraph's end becomes a line feed.
QString typed(QString slice)
{
    return slice.replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

NoteText::NoteText(QTextDocument &document, QTextBlockFormat paragraph, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_paragraph(std::move(paragraph))
{
    // Undo steps are kept elsewhere.
    document.setUndoRedoEnabled(false);
    connect(&document, &QTextDocument::contentsChange, this, &NoteText::onContentsChange);
    connect(&document, &QTextDocument::contentsChanged, this, &NoteText::onContentsChanged);
    load({});
}

QStringView NoteText::line(const QTextBlock &block) const
{
    return QStringView(m_text).mid(block.position(), block.length() - 1);
}

QString NoteText::composedLine(const QTextBlock &block) const
{
    QString composed = line(block).toString();
    const QTextLayout &layout = *block.layout();
    if (!layout.preeditAreaText().isEmpty())
        composed.insert(layout.preeditAreaPosition(), layout.preeditAreaText());
    return composed;
}

void NoteText::load(const QString &text)
{
    const QScopedValueRollback following(m_isFollowing, false);
    m_text = text;
    QTextCursor cursor(&m_document);
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    // A new paragraph inherits this from the one that it was split from.
    cursor.setBlockFormat(m_paragraph);
    cursor.insertText(shown(text));
    cursor.endEditBlock();
}

void NoteText::replace(qsizetype position, qsizetype length, const QString &text)
{
    const QScopedValueRollback following(m_isFollowing, false);
    m_change = Splice{.position = position, .removed = m_text.mid(position, length), .inserted = text};
    m_text.replace(position, length, text);
    QTextCursor cursor(&m_document);
    cursor.beginEditBlock();
    cursor.setPosition(static_cast<int>(position));
    cursor.setPosition(static_cast<int>(position + length), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.insertText(shown(text));
    cursor.endEditBlock();
}

void NoteText::onContentsChange(int position, int removed, int added)
{
    // Sometimes the end of the last paragraph is counted too.
    const int size = m_document.characterCount() - 1;
    const int length = std::clamp(added, 0, std::max(size - position, 0));
    if (m_isFollowing)
        follow(position, m_text.size() - (size - length), length);
    Q_UNUSED(removed)
    Q_EMIT touched(position, length);
}

void NoteText::follow(qsizetype position, qsizetype removed, qsizetype added)
{
    // After an input method, the document reports whole paragraphs, so leave out what is unchanged; it may
    // stand for other characters.
    const QString before = shown(m_text.mid(position, removed));
    const QString after = shownSlice(position, added);
    const Splice change = difference(before, after);
    if (change.isEmpty())
        return;
    position += change.position;
    m_change = Splice{.position = position,
                      .removed = m_text.mid(position, change.removed.size()),
                      .inserted = typed(change.inserted)};
    m_text.replace(position, m_change->removed.size(), m_change->inserted);
}

void NoteText::onContentsChanged()
{
    if (const std::optional<Splice> change = std::exchange(m_change, std::nullopt))
        Q_EMIT changed(*change);
}

QString NoteText::shownSlice(qsizetype position, qsizetype length) const
{
    QTextCursor cursor(&m_document);
    cursor.setPosition(static_cast<int>(position));
    cursor.setPosition(static_cast<int>(position + length), QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

} // namespace vesk
