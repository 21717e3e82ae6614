// SPDX-License-Identifier: MIT
#pragma once

#include "notes/markup.h"

#include <QStringView>

namespace vesk {

// What counts as white space and as a line in the markup. Internal to this layer.

/// Space, tab and Unicode's other space separators.
[[nodiscard]] inline bool isHorizontalSpace(QChar c)
{
    return c == u' ' || c == u'\t' || (c.unicode() >= 0xA0 && c.category() == QChar::Separator_Space);
}

/// Whether the character breaks a line on the screen. Only the line feed separates raw lines.
[[nodiscard]] inline bool isLineBreak(QChar c)
{
    return (c >= u'\n' && c <= u'\r') || c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
}

[[nodiscard]] inline bool isSpaceOrLineBreak(QChar c)
{
    return isHorizontalSpace(c) || isLineBreak(c);
}

/// `text` without the characters at both ends that `isDropped` accepts.
template <typename Predicate>
[[nodiscard]] QStringView trimmedView(QStringView text, Predicate isDropped)
{
    while (!text.isEmpty() && isDropped(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isDropped(text.back()))
        text.chop(1);
    return text;
}

[[nodiscard]] inline bool isCheckboxLine(QStringView line)
{
    return line.startsWith(markup::kUnticked) || line.startsWith(markup::kTicked);
}

/// Iterates over the raw lines of a text, which are separated by line feeds, without copying any. An empty
/// text has one line, and a final line feed is followed by an empty line. The text must outlive this object.
class RawLines final
{
public:
    explicit RawLines(QStringView text)
        : m_text(text)
    {
    }

    /// Advances to the next line. Returns false, once, at the end.
    bool next()
    {
        if (m_nextStart > m_text.size())
            return false;
        m_start = m_nextStart;
        const qsizetype end = m_text.indexOf(u'\n', m_start);
        m_end = end < 0 ? m_text.size() : end;
        m_nextStart = m_end + 1;
        ++m_number;
        return true;
    }

    [[nodiscard]] QStringView raw() const { return m_text.sliced(m_start, m_end - m_start); }
    [[nodiscard]] QStringView trimmed() const { return trimmedView(raw(), isHorizontalSpace); }
    /// Counted from 0.
    [[nodiscard]] qsizetype number() const { return m_number; }
    /// Where the line begins and ends in the text, in UTF-16 units.
    [[nodiscard]] qsizetype start() const { return m_start; }
    [[nodiscard]] qsizetype end() const { return m_end; }

private:
    QStringView m_text;
    qsizetype m_start = 0;
    qsizetype m_end = 0;
    qsizetype m_nextStart = 0;
    qsizetype m_number = -1;
};

} // namespace vesk
