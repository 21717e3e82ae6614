// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QPointF>
#include <QRectF>

class QQuickItem;
class QTextDocument;

namespace vesk {

/// The toolkit's text editing item, accessed through its properties because its class is private.
class EditItem final
{
public:
    EditItem() = default;
    explicit EditItem(QQuickItem *item)
        : m_item(item)
    {
    }

    [[nodiscard]] QQuickItem *item() const { return m_item; }
    /// Null for a single-line item.
    [[nodiscard]] QTextDocument *document() const;
    /// While the text is changing, the ends of the selection may be outdated, but not the caret.
    [[nodiscard]] Selection selection() const;
    [[nodiscard]] qsizetype caret() const;
    void select(const Selection &selection) const;
    /// The position nearest to a point of the item, and the rectangle of a position.
    [[nodiscard]] qsizetype positionAt(const QPointF &point) const;
    [[nodiscard]] QRectF rectangleOf(qsizetype position) const;
    /// Whether an input method is composing a text in it.
    [[nodiscard]] bool isComposing() const;
    /// Commits the composed text if the input method does not do so when asked.
    void endComposing() const;

private:
    QQuickItem *m_item = nullptr;
};

} // namespace vesk
