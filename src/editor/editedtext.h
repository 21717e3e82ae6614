// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// A text that an item shows and lets the user edit. Positions are UTF-16 units.
class EditedText
{
public:
    EditedText() = default;
    virtual ~EditedText() = default;
    Q_DISABLE_COPY_MOVE(EditedText)

    /// Without what an input method is composing.
    [[nodiscard]] virtual const QString &text() const = 0;
    /// Puts `text` in place of `length` units at `position`.
    virtual void replace(qsizetype position, qsizetype length, const QString &text) = 0;
};

} // namespace vesk
