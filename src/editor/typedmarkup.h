// SPDX-License-Identifier: MIT
#pragma once

namespace vesk {

class EditItem;
class EditSteps;
class NoteText;

/// What a typed space and a typed line break do at the caret, whether a key or an input method types them.
/// Each change is undone as one step.
class TypedMarkup final
{
public:
    /// All must outlive this object.
    TypedMarkup(const EditItem &edit, const NoteText &text, EditSteps &steps);

    /// Turns the text before the caret into a marker. Returns false, with nothing changed, if a space is just
    /// a space there.
    bool typeSpace();
    /// Whether the caret is in a list item that contains only its marker, with nothing selected.
    [[nodiscard]] bool isInEmptyItem() const;
    /// Breaks the line, continuing a list; in an empty item it ends the list instead.
    void typeLineBreak();

private:
    const EditItem &m_edit;
    const NoteText &m_text;
    EditSteps &m_steps;
};

} // namespace vesk
