// SPDX-License-Identifier: MIT
#include "editor/texttransfer.h"

#include "editor/edititem.h"
#include "editor/editsteps.h"
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
        insertFrom(m_lent->pasteboard(), std::nullopt);
}

void TextTransfer::pasteSelected(qsizetype position)
{
    if (m_lent && m_lent->primary())
        insertFrom(*m_lent->primary(), position);
}

QCoro::Task<> TextTransfer::insertFrom(Pasteboard &pasteboard, std::optional<qsizetype> position)
{
    const QPointer<TextTransfer> self(this);
    // Follows what is typed before the owner of the text has answered.
    QTextCursor place(&m_text.document());
    place.setPosition(static_cast<int>(position.value_or(0)));
    const std::optional<QString> text = co_await pasteboard.string();
    if (self.isNull() || !text || m_edit.isComposing())
        co_return;
    if (position)
        m_edit.select(Selection::at(place.position()));
    m_steps.replaceSelection(*text);
}

void TextTransfer::publishSelection()
{
    if (!m_lent || !m_lent->primary() || m_edit.selection().isEmpty())
        return;
    const QString text = selectedText();
    if (text == m_published)
        return;
    m_published = text;
    m_lent->primary()->setString(text);
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
