// SPDX-License-Identifier: MIT
#include "editor/texttransfer.h"

#include "editor/edititem.h"
#include "editor/editsteps.h"
#include "editor/heldinput.h"
#include "editor/notetext.h"
#include "platform/pasteboard.h"

#include <QTextCursor>
#include <QTextDocument>

namespace vesk {

TextTransfer::TextTransfer(EditSteps &steps, const EditItem &edit, const NoteText &text,
                           LentPasteboards *lent)
    : m_steps(steps)
    , m_edit(edit)
    , m_text(text)
    , m_lent(lent)
{
    connect(edit.item(), SIGNAL(selectedTextChanged()), this, SLOT(onSelectionChanged()));
}

QString TextTransfer::selectedText() const
{
    const Selection selection = m_edit.selection();
    return m_text.text().mid(selection.start(), selection.length());
}

void TextTransfer::copy() const
{
    if (m_lent && !m_edit.selection().isEmpty())
        m_lent->pasteboard().setString(selectedText());
}

void TextTransfer::cut()
{
    const Selection selection = m_edit.selection();
    if (!m_lent || selection.isEmpty())
        return;
    copy();
    m_steps.edit(selection.start(), selection.length(), {}, Selection::at(selection.start()));
}

void TextTransfer::paste()
{
    if (m_lent)
        insertFrom(m_lent->pasteboard(), m_edit.selection(), Then::PlaceCaret);
}

void TextTransfer::pasteSelected(qsizetype position)
{
    if (!m_lent || !m_lent->primary())
        return;
    m_edit.select(Selection::at(position));
    insertFrom(*m_lent->primary(), Selection::at(position), Then::PlaceCaret);
}

void TextTransfer::dropAt(qsizetype position)
{
    if (m_lent && m_lent->dragged())
        insertFrom(*m_lent->dragged(), Selection::at(position), Then::Select);
}

QCoro::Task<> TextTransfer::insertFrom(Pasteboard &pasteboard, Selection place, Then then)
{
    const QPointer<TextTransfer> self(this);
    // Follows other changes that happen before the owner of the text has answered.
    QTextCursor span(&m_text.document());
    span.setPosition(static_cast<int>(place.start()));
    span.setPosition(static_cast<int>(place.end()), QTextCursor::KeepAnchor);
    // Before input is held, which would also hold back the commit.
    m_edit.endComposing();
    // Sends the held input on when it is destroyed, after the text was inserted.
    HeldInput held(*m_edit.item());
    const std::optional<QString> text = co_await pasteboard.string(Pasteboard::Patience::Long);
    if (!text)
        held.dropPastes();
    if (self.isNull() || !text || text->isEmpty())
        co_return;
    const qsizetype start = span.selectionStart();
    const qsizetype end = span.selectionEnd();
    // If the user has moved the caret meanwhile, it stays there.
    const Selection selection = m_edit.selection();
    Selection after{.anchor = moved(selection.anchor, start, end - start, text->size()),
                    .caret = moved(selection.caret, start, end - start, text->size())};
    if (then == Then::Select)
        after = {.anchor = start, .caret = start + text->size()};
    m_steps.edit(start, end - start, *text, after);
}

void TextTransfer::publishSelection()
{
    // Only publish a new selection: another program may have selected something since.
    if (!m_isSelectionNew || !m_lent || !m_lent->primary() || m_edit.selection().isEmpty())
        return;
    m_isSelectionNew = false;
    m_lent->primary()->setString(selectedText());
}

void TextTransfer::moveSelection(qsizetype position, bool isCopied)
{
    const Selection selection = m_edit.selection();
    const QString moved = selectedText();
    if (isCopied) {
        m_steps.edit(position, 0, moved, {.anchor = position, .caret = position + moved.size()});
    } else if (position < selection.start()) {
        const QString passed = m_text.text().mid(position, selection.start() - position);
        m_steps.edit(position, selection.end() - position, moved + passed,
                     {.anchor = position, .caret = position + moved.size()});
    } else if (position > selection.end()) {
        const QString passed = m_text.text().mid(selection.end(), position - selection.end());
        m_steps.edit(selection.start(), position - selection.start(), passed + moved,
                     {.anchor = position - moved.size(), .caret = position});
    }
}

} // namespace vesk
