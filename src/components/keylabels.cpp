// SPDX-License-Identifier: MIT
#include "components/keylabels.h"

#include <algorithm>
#include <array>

namespace vesk {

namespace {

struct Entry
{
    QStringView glyph;
    QStringView global;
    QStringView window;
};

constexpr std::array kEntries{
    Entry{.glyph = u"\u2318", .global = u"Super", .window = u"Ctrl"},
    Entry{.glyph = u"\u2325", .global = u"Alt", .window = u"Alt"},
    Entry{.glyph = u"\u2303", .global = u"Ctrl", .window = u"Ctrl"},
    Entry{.glyph = u"\u21E7", .global = u"Shift", .window = u"Shift"},
    Entry{.glyph = u"\u21A9", .global = u"Enter", .window = u"Enter"},
    Entry{.glyph = u"\u232B", .global = u"Backspace", .window = u"Backspace"},
    Entry{.glyph = u"\u2423", .global = u"Space", .window = u"Space"},
    Entry{.glyph = u"esc", .global = u"Esc", .window = u"Esc"},
};

} // namespace

QString KeyLabels::label(const QString &glyph, Place place)
{
    const auto *const entry =
        std::ranges::find_if(kEntries, [&glyph](const Entry &each) { return each.glyph == glyph; });
    if (entry == kEntries.end())
        return glyph;
    return (place == Global ? entry->global : entry->window).toString();
}

} // namespace vesk
