// SPDX-License-Identifier: MIT
#include "editor/eraserules.h"

#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <memory>

namespace vesk::eraserules {

namespace {

struct CloseBreaks
{
    void operator()(UBreakIterator *breaks) const { ubrk_close(breaks); }
};
using Breaks = std::unique_ptr<UBreakIterator, CloseBreaks>;

/// The grapheme cluster boundaries of the text. Null if ICU has no data for them.
Breaks graphemes(QStringView text)
{
    UErrorCode error = U_ZERO_ERROR;
    Breaks breaks(ubrk_open(UBRK_CHARACTER, "", text.utf16(), static_cast<int32_t>(text.size()), &error));
    return U_SUCCESS(error) ? std::move(breaks) : Breaks();
}

qsizetype codePointStart(QStringView text, qsizetype end)
{
    auto start = static_cast<int32_t>(end);
    U16_BACK_1(text.utf16(), 0, start);
    return start;
}

char32_t codePointAt(QStringView text, qsizetype position)
{
    UChar32 found = 0;
    U16_GET(text.utf16(), 0, static_cast<int32_t>(position), static_cast<int32_t>(text.size()), found);
    return static_cast<char32_t>(found);
}

bool has(char32_t character, UProperty property)
{
    return u_hasBinaryProperty(static_cast<UChar32>(character), property);
}

bool isEmoji(QStringView cluster)
{
    constexpr char32_t kKeycap = 0x20e3;
    const QChar first = cluster.front();
    const bool isKey = (first >= u'0' && first <= u'9') || first == u'#' || first == u'*';
    for (qsizetype i = 0; i < cluster.size(); ++i) {
        const char32_t character = codePointAt(cluster, i);
        if (has(character, UCHAR_EXTENDED_PICTOGRAPHIC) || has(character, UCHAR_REGIONAL_INDICATOR)
            || (isKey && character == kKeycap))
            return true;
    }
    return false;
}

} // namespace

qsizetype backspaceStart(QStringView text, qsizetype caret)
{
    if (caret <= 0)
        return caret;
    if (text.first(caret).endsWith(u"\r\n"))
        return caret - 2;
    if (const Breaks breaks = graphemes(text)) {
        const qsizetype start = ubrk_preceding(breaks.get(), static_cast<int32_t>(caret));
        if (isEmoji(text.sliced(start, caret - start)))
            return start;
    }
    const qsizetype start = codePointStart(text, caret);
    const bool isSelector = has(codePointAt(text, start), UCHAR_VARIATION_SELECTOR);
    const bool hasBase = start > 0 && !text.at(start - 1).isSpace();
    return isSelector && hasBase ? codePointStart(text, start) : start;
}

qsizetype deleteEnd(QStringView text, qsizetype caret)
{
    if (caret >= text.size())
        return caret;
    if (const Breaks breaks = graphemes(text))
        return ubrk_following(breaks.get(), static_cast<int32_t>(caret));
    auto end = static_cast<int32_t>(caret);
    U16_FWD_1(text.utf16(), end, static_cast<int32_t>(text.size()));
    return end;
}

} // namespace vesk::eraserules
