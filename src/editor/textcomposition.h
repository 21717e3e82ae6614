// SPDX-License-Identifier: MIT
#pragma once

class QInputMethodEvent;

namespace vesk {

class EditItem;
class EditSteps;
class NoteText;
class NoteTextKeys;
class NoteTextView;

/// What an input method writes into an editor. Owned by the editor's view, whose event filter passes it every
/// event before the text item sees it.
class TextComposition final
{
public:
    /// All must outlive this object.
    TextComposition(NoteTextView &view, const EditItem &edit, const NoteText &text, EditSteps &steps,
                    NoteTextKeys &keys);

    /// Returns true if the event was handled here, false if it is for the item.
    bool handle(const QInputMethodEvent &event);

private:
    bool commitTyped(const QInputMethodEvent &event);
    bool replaceWholeCharacters(const QInputMethodEvent &event);
    void deliver(QInputMethodEvent &event);

    NoteTextView &m_view;
    const EditItem &m_edit;
    const NoteText &m_text;
    EditSteps &m_steps;
    NoteTextKeys &m_keys;
};

} // namespace vesk
