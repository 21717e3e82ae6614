// SPDX-License-Identifier: MIT
#pragma once

#include "editor/textformats.h"

#include <QTextBlock>

#include <memory>

namespace vesk {

class NoteText;

/// Keeps the looks of a document as the rules have them for its whole text, by doing only what a
/// change needs. Looks are formats of the layout, which are no part of the document's content.
class Styler final
{
public:
    /// The text has to outlive the styler.
    explicit Styler(const NoteText &text);

    /// Another look; the whole document gets it.
    void setLook(const TextLook &look, bool firstLineIsTitle);
    /// To be called within a change of the document, for the part that it touched.
    void restyle(int position, int length);

    /// The formats that a paragraph has to have, those of the text being composed in it included.
    [[nodiscard]] QList<QTextLayout::FormatRange> wanted(const QTextBlock &block) const;

private:
    void restyle(const QTextBlock &block) const;
    [[nodiscard]] QTextBlock findTitle() const;
    void markTitle(const QTextBlock &title);

    const NoteText &m_text;
    TextFormats m_formats{TextLook()};
    bool m_firstLineIsTitle = false;
    /// The paragraph that is the title, while it is there; not valid for none.
    std::shared_ptr<QTextBlock> m_title = std::make_shared<QTextBlock>();
};

} // namespace vesk
