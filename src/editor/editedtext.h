// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// A text that an item displays and lets the user edit. Positions are in UTF-16 units.
class EditedText
{
public:
    EditedText() = default;
    virtual ~EditedText() = default;
    Q_DISABLE_COPY_MOVE(EditedText)

    /// Excludes text that an input method is still composing.
    [[nodiscard]] virtual const QString &text() const = 0;
    /// Replaces `length` units at `position` with `text`.
    virtual void replace(qsizetype position, qsizetype length, const QString &text) = 0;
};

} // namespace vesk
