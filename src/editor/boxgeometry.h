// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

namespace vesk {

class NoteText;

/// A checkbox at the start of a line.
struct Box
{
    /// The position of its glyph in the text, in UTF-16 units.
    qsizetype position = 0;
    /// Where the circle is drawn, in the document's coordinates.
    QRectF square;
    bool isTicked = false;
    /// The line's text after its checkbox.
    QString label;

    friend bool operator==(const Box &, const Box &) = default;
};

namespace boxgeometry {

/// The checkboxes of the lines between two heights of the document, in order, sized for this text scale. The
/// layout must be up to date.
[[nodiscard]] QList<Box> boxesBetween(const NoteText &text, qreal top, qreal bottom, qreal scale);
/// The position of the checkbox that a click at this point of the document is meant for.
[[nodiscard]] std::optional<qsizetype> findBox(const NoteText &text, const QPointF &point);

} // namespace boxgeometry
} // namespace vesk
