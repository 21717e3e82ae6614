// SPDX-License-Identifier: MIT
#pragma once

#include "editor/textformats.h"

#include <QTextBlock>

#include <memory>

namespace vesk {

class NoteText;

/// Keeps the formatting of a whole document as the rules require, doing only what each change needs. The
/// formats are those of the layout, which are not part of the document's content.
class Styler final
{
public:
    /// The text must outlive the styler.
    explicit Styler(const NoteText &text);

    /// Applies a different look to the whole document.
    void setLook(const TextLook &look, bool firstLineIsTitle);
    /// Must be called during a change of the document, for the part that it touched.
    void restyle(int position, int length);

    /// The formats that a paragraph must have, including those of the text being composed in it.
    [[nodiscard]] QList<QTextLayout::FormatRange> wanted(const QTextBlock &block) const;

private:
    void restyle(const QTextBlock &block) const;
    [[nodiscard]] QTextBlock findTitle() const;
    void markTitle(const QTextBlock &title);

    const NoteText &m_text;
    TextFormats m_formats{TextLook()};
    bool m_firstLineIsTitle = false;
    /// The paragraph that is the title; invalid if there is none.
    std::shared_ptr<QTextBlock> m_title = std::make_shared<QTextBlock>();
};

} // namespace vesk
