// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QList>

#include <optional>

namespace vesk {

/// What the user can take back. A step is one change of the text with what was selected before and
/// after it; what is typed or deleted in one go is one step. Knows nothing of the text itself.
class EditHistory final
{
public:
    /// How a change joins the step before it.
    enum class Kind {
        /// Typed or deleted key by key: a step goes on until a new word, a pause, or another place.
        Typing,
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
    void endStep() { m_isOpen = false; }

    /// The step to take back, and the step to do again; none where there is none. The caller changes
    /// the text accordingly.
    [[nodiscard]] std::optional<Step> undo();
    [[nodiscard]] std::optional<Step> redo();
    [[nodiscard]] bool canUndo() const { return m_done > 0; }
    [[nodiscard]] bool canRedo() const { return m_done < m_steps.size(); }

    void clear();

private:
    [[nodiscard]] bool join(const Step &step, quint64 time);

    QList<Step> m_steps;
    /// How many of them are in effect.
    qsizetype m_done = 0;
    quint64 m_time = 0;
    bool m_isOpen = false;
};

} // namespace vesk
