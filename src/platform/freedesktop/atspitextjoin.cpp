// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspitextjoin.h"

#include <QSet>

namespace vesk {

using namespace Qt::StringLiterals;

AtSpiTextJoin::Layout AtSpiTextJoin::layoutOf(const QString &roleName)
{
    static const QSet<QString> cells{u"table cell"_s, u"column header"_s, u"table column header"_s,
                                     u"row header"_s, u"table row header"_s};
    static const QSet<QString> inlines{u"link"_s,
                                       u"static"_s,
                                       u"text"_s,
                                       u"label"_s,
                                       u"image"_s,
                                       u"icon"_s,
                                       u"push button"_s,
                                       u"button"_s,
                                       u"toggle button"_s,
                                       u"check box"_s,
                                       u"radio button"_s,
                                       u"content insertion"_s,
                                       u"content deletion"_s,
                                       u"mark"_s,
                                       u"suggestion"_s,
                                       u"subscript"_s,
                                       u"superscript"_s,
                                       u"math"_s,
                                       u"footnote"_s};
    if (cells.contains(roleName))
        return Layout::Cell;
    return inlines.contains(roleName) ? Layout::Inline : Layout::Block;
}

void AtSpiTextJoin::append(const Piece &piece)
{
    if (piece.text.isEmpty())
        return;
    const bool isAtLineStart = m_text.isEmpty() || m_text.endsWith(u'\n');
    const bool isNewLine = piece.layout != Layout::Inline || m_last != Layout::Inline;
    if (piece.layout == Layout::Cell && m_last == Layout::Cell)
        m_text += u'\t';
    else if (isNewLine && !isAtLineStart && !piece.text.startsWith(u'\n'))
        m_text += u'\n';
    m_text += piece.text;
    m_last = piece.layout;
}

} // namespace vesk
