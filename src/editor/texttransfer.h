// SPDX-License-Identifier: MIT
#pragma once

#include "editor/lentpasteboards.h"
#include "editor/splice.h"

#include <QCoroTask>

#include <QObject>
#include <QPointer>
#include <QString>

namespace vesk {

class EditItem;
class EditSteps;
class NoteText;
class Pasteboard;

/// Moves text into, out of and within an editor, using the pasteboards and by dragging. The text is kept
/// exactly, which the toolkit's own copying and pasting would not do. Without pasteboards nothing is cut,
/// copied or pasted.
class TextTransfer final : public QObject
{
    Q_OBJECT

public:
    /// All but `lent`, which may be null, must outlive this object.
    TextTransfer(EditSteps &steps, const EditItem &edit, const NoteText &text, LentPasteboards *lent);

    void cut();
    void copy() const;
    /// Replaces the current selection with the pasteboard's text. What is typed meanwhile follows it.
    void paste();
    /// Inserts what was last selected in any program at this position.
    void pasteSelected(qsizetype position);
    /// Inserts what was dragged here from elsewhere at this position, and selects it.
    void dropAt(qsizetype position);
    /// Offers a new selection to the middle mouse button, here and in other programs.
    void publishSelection();
    /// Moves the selection, or a copy of it, to another position.
    void moveSelection(qsizetype position, bool isCopied);

private Q_SLOTS:
    void onSelectionChanged() { m_isSelectionNew = true; }

private:
    [[nodiscard]] QString selectedText() const;
    enum class Then {
        PlaceCaret,
        Select,
    };
    QCoro::Task<> insertFrom(Pasteboard &pasteboard, Selection place, Then then);

    EditSteps &m_steps;
    const EditItem &m_edit;
    const NoteText &m_text;
    QPointer<LentPasteboards> m_lent;
    bool m_isSelectionNew = false;
};

} // namespace vesk
