// SPDX-License-Identifier: MIT
#pragma once

#include "editor/edithistory.h"

#include <optional>

namespace vesk {

class EditItem;
class EditedText;

/// Changes a text step by step, and undoes the steps. What the item changes by itself, as the user types, is
/// recorded too.
class EditSteps final
{
public:
    /// Both must outlive this.
    EditSteps(const EditItem &edit, EditedText &text);

    /// Changes the text as one step to take back.
    void edit(qsizetype position, qsizetype length, const QString &text, const Selection &after);
    /// Removes a text as typing does: what is erased key by key is one step.
    void erase(qsizetype position, qsizetype length);
    /// Puts a text in place of the selection; an empty one changes nothing.
    void replaceSelection(const QString &text);
    // Neither does anything while an input method is composing.
    void undo();
    void redo();
    [[nodiscard]] bool canUndo() const { return m_history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return m_history.canRedo(); }

    // To be called before the item sees what may change the text: a key, with its time in milliseconds, or
    // the event of an input method.
    void beforeKey(quint64 time);
    void beforeInputMethod();
    /// To be called after each change, whoever made it.
    void record(const Splice &change);
    /// The next change begins a step, whatever it is.
    void endStep() { m_history.endStep(); }
    /// Another text was loaded: nothing is left to take back.
    void clear() { m_history.clear(); }

private:
    void replay(const Splice &change, const Selection &after);

    const EditItem &m_edit;
    EditedText &m_text;
    EditHistory m_history;
    /// What the next change starts from, how it joins the last one, and what it leaves selected if that
    /// is not up to the item.
    Selection m_before;
    EditHistory::Kind m_kind = EditHistory::Kind::Typing;
    std::optional<Selection> m_after;
    quint64 m_time = 0;
    bool m_isReplaying = false;
};

} // namespace vesk
