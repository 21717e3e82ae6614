// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// Puts a text together from runs and from the objects embedded between them, the way the user sees
/// them: blocks begin and end a line, cells of a row are apart by tabs.
class AtSpiTextJoin final
{
public:
    enum class Layout {
        /// Stands in the line, as a link does.
        Inline,
        Block,
        Cell,
    };

    struct Piece
    {
        QString text;
        Layout layout = Layout::Inline;
    };

    /// How an object of this role stands in the text around it.
    [[nodiscard]] static Layout layoutOf(const QString &roleName);

    void append(const Piece &piece);
    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
    /// Layout of the last piece that had a text.
    Layout m_last = Layout::Inline;
};

} // namespace vesk
