// SPDX-License-Identifier: MIT
#include "editor/typedmarkup.h"

#include "editor/edititem.h"
#include "editor/editrules.h"
#include "editor/editsteps.h"
#include "editor/notetext.h"

#include <QTextBlock>
#include <QTextDocument>

namespace vesk {

TypedMarkup::TypedMarkup(const EditItem &edit, const NoteText &text, EditSteps &steps)
    : m_edit(edit)
    , m_text(text)
    , m_steps(steps)
{
}

bool TypedMarkup::typeSpace()
{
    const Selection selection = m_edit.selection();
    if (!selection.isEmpty())
        return false;
    const QTextBlock block = m_text.document().findBlock(static_cast<int>(selection.caret));
    const QStringView before = m_text.line(block).first(selection.caret - block.position());
    const std::optional<editrules::MarkerChange> change = editrules::typedSpace(before);
    if (!change)
        return false;
    m_steps.edit(block.position(), change->length, change->marker.toString(),
                 Selection::at(block.position() + change->marker.size()));
    return true;
}

bool TypedMarkup::isInEmptyItem() const
{
    const Selection selection = m_edit.selection();
    const QTextBlock block = m_text.document().findBlock(static_cast<int>(selection.caret));
    return selection.isEmpty()
           && editrules::typedLineBreak(m_text.line(block)).kind == editrules::LineBreak::Kind::EmptyItem;
}

void TypedMarkup::typeLineBreak()
{
    const Selection selection = m_edit.selection();
    const QTextBlock block = m_text.document().findBlock(static_cast<int>(selection.caret));
    editrules::LineBreak lineBreak;
    if (selection.isEmpty())
        lineBreak = editrules::typedLineBreak(m_text.line(block));
    if (lineBreak.kind == editrules::LineBreak::Kind::EmptyItem) {
        m_steps.edit(block.position(), lineBreak.marker.size(), {}, Selection::at(block.position()));
        return;
    }
    const QString typed = u'\n' + lineBreak.marker.toString();
    m_steps.edit(selection.start(), selection.length(), typed,
                 Selection::at(selection.start() + typed.size()));
}

} // namespace vesk
