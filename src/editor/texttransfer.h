// SPDX-License-Identifier: MIT
#pragma once

#include "editor/lentpasteboards.h"

#include <QCoroTask>

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

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
    /// All but `lent`, which may be null, have to outlive this.
    TextTransfer(EditSteps &steps, const EditItem &edit, const NoteText &text, LentPasteboards *lent);

    void cut();
    void copy() const;
    void paste();
    /// Puts what was last selected, anywhere, at this place.
    void pasteSelected(qsizetype position);
    /// Offers what is selected for the middle mouse button, here and elsewhere.
    void publishSelection();
    /// Moves what is selected, or a copy of it, to another place.
    void moveSelection(qsizetype position, bool isCopied);

private:
    [[nodiscard]] QString selectedText() const;
    QCoro::Task<> insertFrom(Pasteboard &pasteboard, std::optional<qsizetype> position);

    EditSteps &m_steps;
    const EditItem &m_edit;
    const NoteText &m_text;
    QPointer<LentPasteboards> m_lent;
    QString m_published;
};

} // namespace vesk
