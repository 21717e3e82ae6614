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

/// Moves text into, out of and within an editor: by the pasteboards, and by dragging. The text goes as
/// it is, which the toolkit's own copying and pasting would not leave it. Without pasteboards nothing is
/// cut, copied or pasted.
class TextTransfer final : public QObject
{
    Q_OBJECT

public:
    /// All but `lent`, which may be null, must outlive this.
    TextTransfer(EditSteps &steps, const EditItem &edit, const NoteText &text, LentPasteboards *lent);

    void cut();
    void copy() const;
    /// Puts the pasteboard's text in place of the selection of now. What is typed meanwhile comes after it.
    void paste();
    /// Puts what was last selected, anywhere, at this place.
    void pasteSelected(qsizetype position);
    /// Puts what was dragged here from elsewhere at this place, and selects it.
    void dropAt(qsizetype position);
    /// Offers a new selection for the middle mouse button, here and elsewhere.
    void publishSelection();
    /// Moves what is selected, or a copy of it, to another place.
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
