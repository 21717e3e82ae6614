// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QList>

#include <optional>

namespace vesk {

/// The steps that the user can undo. A step is one change of the text, with the selections before and after
/// it. Continuous typing or deleting is one step, and so is each text that an input method commits. Never
/// separates the halves of a surrogate pair. Does not hold the text itself.
class EditHistory final
{
public:
    /// How a change joins the previous step.
    enum class Kind {
        /// Typed or deleted key by key: a step continues until a new word, a pause, or another position.
        Typing,
        /// Written by an input method: a separate step. If text was selected, it is removed when the method
        /// begins to compose, and what then replaces it belongs to the same step.
        Composing,
        /// A separate step.
        Single,
    };

    struct Step
    {
        Splice change;
        Selection before;
        Selection after;
    };

    /// Records a change, with the time of its key in milliseconds. Steps that were undone can then no longer
    /// be redone.
    void record(const Step &step, Kind kind, quint64 time);
    /// The next change begins a new step, whatever it is.
    void endStep() { m_open.reset(); }

    /// The step to undo and the step to redo; nullopt if there is none. The caller changes the text
    /// accordingly.
    [[nodiscard]] std::optional<Step> undo();
    [[nodiscard]] std::optional<Step> redo();
    [[nodiscard]] bool canUndo() const { return m_done > 0; }
    [[nodiscard]] bool canRedo() const { return m_done < m_steps.size(); }

    void clear();

private:
    [[nodiscard]] bool continuesLast(const Step &step, Kind kind, quint64 time) const;
    void join(const Step &step);

    QList<Step> m_steps;
    /// How many of the steps are in effect.
    qsizetype m_done = 0;
    quint64 m_time = 0;
    /// What can still join the last step; nullopt if nothing can.
    std::optional<Kind> m_open;
};

} // namespace vesk
