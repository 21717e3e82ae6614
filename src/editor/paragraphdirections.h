// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <optional>
#include <utility>

class QTextDocument;

namespace vesk {

/// Gives each paragraph of a document the direction of its line. The toolkit's text item would give all of
/// them the direction of the first.
class ParagraphDirections final
{
public:
    /// The document must outlive this object.
    explicit ParagraphDirections(QTextDocument &document);

    /// Records that a part of the document has changed. May be called during the change.
    void touch(int position, int length);
    /// Sets the directions of the paragraphs touched since the last call, and of those that follow them. Must
    /// not be called before the layout has been updated.
    void apply();

private:
    QTextDocument &m_document;
    /// Start and end of the touched part.
    std::optional<std::pair<int, int>> m_touched;
};

} // namespace vesk
