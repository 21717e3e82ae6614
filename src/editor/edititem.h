// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QPointF>
#include <QRectF>

class QQuickItem;
class QTextDocument;

namespace vesk {

/// The toolkit's text editing item, whose class is not public, by its properties.
class EditItem final
{
public:
    EditItem() = default;
    explicit EditItem(QQuickItem *item)
        : m_item(item)
    {
    }

    [[nodiscard]] QQuickItem *item() const { return m_item; }
    /// Null for an item of a single line.
    [[nodiscard]] QTextDocument *document() const;
    /// While the text is changing the ends of the selection can be those of before, but not the caret.
    [[nodiscard]] Selection selection() const;
    [[nodiscard]] qsizetype caret() const;
    void select(const Selection &selection) const;
    /// The position nearest to a point of the item, and the place of a position.
    [[nodiscard]] qsizetype positionAt(const QPointF &point) const;
    [[nodiscard]] QRectF rectangleOf(qsizetype position) const;
    /// Whether an input method is composing a text in it.
    [[nodiscard]] bool isComposing() const;
    /// Writes what is being composed into the text, where the input method does not do so when it is asked.
    void endComposing() const;

private:
    QQuickItem *m_item = nullptr;
};

} // namespace vesk
