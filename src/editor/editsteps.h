// SPDX-License-Identifier: MIT
#pragma once

#include "editor/edithistory.h"

#include <optional>

namespace vesk {

class EditItem;
class EditedText;

/// Changes a text in steps, and undoes them. Also records what the item changes itself as the user types.
class EditSteps final
{
public:
    /// Both must outlive this object.
    EditSteps(const EditItem &edit, EditedText &text);

    /// Makes a change that is undone as one step.
    void edit(qsizetype position, qsizetype length, const QString &text, const Selection &after);
    /// Removes text as typing does: consecutive erasing is one step.
    void erase(qsizetype position, qsizetype length);
    /// Replaces the selection; does nothing if `text` is empty.
    void replaceSelection(const QString &text);
    // Both do nothing while an input method is composing.
    void undo();
    void redo();
    [[nodiscard]] bool canUndo() const { return m_history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return m_history.canRedo(); }

    // Must be called before the item sees an event that may change the text: a key, with its time in
    // milliseconds, or an input method event.
    void beforeKey(quint64 time);
    void beforeInputMethod();
    /// Must be called after each change, whoever made it.
    void record(const Splice &change);
    /// The next change begins a new step, whatever it is.
    void endStep() { m_history.endStep(); }
    /// Another text was loaded: there is nothing left to undo.
    void clear() { m_history.clear(); }

private:
    void replay(const Splice &change, const Selection &after);

    const EditItem &m_edit;
    EditedText &m_text;
    EditHistory m_history;
    /// The selection before the next change, how that change joins the last step, and the selection that it
    /// leaves if the item does not decide that.
    Selection m_before;
    EditHistory::Kind m_kind = EditHistory::Kind::Typing;
    std::optional<Selection> m_after;
    quint64 m_time = 0;
    bool m_isReplaying = false;
};

} // namespace vesk
