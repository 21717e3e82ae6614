// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// Assembles a text from runs and the objects embedded between them, as the user sees it: blocks start and
/// end a line, and the cells of a row are separated by tabs.
class AtSpiTextJoin final
{
public:
    enum class Layout {
        /// Part of the line, like a link.
        Inline,
        Block,
        Cell,
    };

    struct Piece
    {
        QString text;
        Layout layout = Layout::Inline;
    };

    /// Returns how an object with this role is placed in the surrounding text.
    [[nodiscard]] static Layout layoutOf(const QString &roleName);

    void append(const Piece &piece);
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
    /// Layout of the last piece with a text.
    Layout m_last = Layout::Inline;
};

} // namespace vesk
