// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QList>

#include <optional>

namespace vesk {

/// What the user can take back. A step is one change of the text with what was selected before and
/// after it; what is typed or deleted in one go is one step, and so is each text that an input method
/// commits. Never separates the halves of a surrogate pair. Knows nothing of the text itself.
class EditHistory final
{
public:
    /// How a change joins the step before it.
    enum class Kind {
        /// Typed or deleted key by key: a step goes on until a new word, a pause, or another place.
        Typing,
        /// Written by an input method: a step of its own. If text was selected, it is removed when the method
        /// begins to compose, and what is then written in its place belongs to the same step.
        Composing,
        /// A step of its own.
        Single,
    };

    struct Step
    {
        Splice change;
        Selection before;
        Selection after;
    };

    /// Notes a change, with the time of its key in milliseconds. What was taken back is then forgotten.
    void record(const Step &step, Kind kind, quint64 time);
    /// The next change begins a step, whatever it is.
    void endStep() { m_open.reset(); }

    /// The step to take back, and the step to do again; none where there is none. The caller changes
    /// the text accordingly.
    [[nodiscard]] std::optional<Step> undo();
    [[nodiscard]] std::optional<Step> redo();
    [[nodiscard]] bool canUndo() const { return m_done > 0; }
    [[nodiscard]] bool canRedo() const { return m_done < m_steps.size(); }

    void clear();

private:
    [[nodiscard]] bool continuesLast(const Step &step, Kind kind, quint64 time) const;
    void join(const Step &step);

    QList<Step> m_steps;
    /// How many of them are in effect.
    qsizetype m_done = 0;
    quint64 m_time = 0;
    /// What can still join the last step; nullopt if nothing can.
    std::optional<Kind> m_open;
};

} // namespace vesk
