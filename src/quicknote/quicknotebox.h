// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// The place where the user writes a note at once, without going through the panel.
class QuickNoteBox
{
public:
    enum class Mode {
        Note,
        Checklist,
    };

    virtual ~QuickNoteBox() = default;

    /// Says that the box may come up in a moment: what is typed from now on is kept for it. `show`, or
    /// `expectNothing`, follows.
    virtual void expect() = 0;
    virtual void expectNothing() = 0;
    /// Brings the box up with the keyboard. `remark` is a line for the user beside the note, such as why it
    /// has no text; empty for none.
    virtual void show(Mode mode, const QString &remark) = 0;
    void show(Mode mode) { show(mode, QString()); }
    /// Takes the box away and keeps what was written in it; does nothing if it is not there.
    virtual void close() = 0;
    [[nodiscard]] virtual bool isShowing() const = 0;
};

} // namespace vesk
