// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// Where the user writes a note straight away, without the panel.
class QuickNoteBox
{
public:
    enum class Mode {
        Note,
        Checklist,
    };

    virtual ~QuickNoteBox() = default;

    /// Announces that the box may open in a moment: what is typed from now on is kept for it. Must be
    /// followed by `show` or `expectNothing`.
    virtual void expect() = 0;
    virtual void expectNothing() = 0;
    /// Opens the box with the focus. `remark` is a line for the user beside the note, such as why it has no
    /// text; empty for none.
    virtual void show(Mode mode, const QString &remark) = 0;
    void show(Mode mode) { show(mode, QString()); }
    /// Closes the box and keeps the draft; does nothing if the box is not open.
    virtual void close() = 0;
    [[nodiscard]] virtual bool isShowing() const = 0;
};

} // namespace vesk
