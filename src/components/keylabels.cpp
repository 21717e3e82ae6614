// SPDX-License-Identifier: MIT
#include "components/keylabels.h"

#include <algorithm>
#include <array>
#include <optional>

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
    Entry{.glyph = u"\u21E5", .global = u"Tab", .window = u"Tab"},
    Entry{.glyph = u"\u2191", .global = u"Up", .window = u"Up"},
    Entry{.glyph = u"\u2193", .global = u"Down", .window = u"Down"},
    Entry{.glyph = u"esc", .global = u"Esc", .window = u"Esc"},
};

/// None for what is no glyph of a key.
std::optional<QStringView> find(QStringView glyph, KeyLabels::Place place)
{
    const auto *const entry =
        std::ranges::find_if(kEntries, [glyph](const Entry &each) { return each.glyph == glyph; });
    if (entry == kEntries.end())
        return std::nullopt;
    return place == KeyLabels::Global ? entry->global : entry->window;
}

} // namespace

QString KeyLabels::label(const QString &glyph, Place place)
{
    const std::optional<QStringView> found = find(glyph, place);
    return found ? found->toString() : glyph;
}

QString KeyLabels::spelt(const QString &text, Place place)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const std::optional<QStringView> key = find(QStringView(text).mid(i, 1), place);
        if (!key) {
            result += text.at(i);
            continue;
        }
        result += *key;
        const QStringView next = QStringView(text).mid(i + 1, 1);
        // The key that follows belongs to the same combination.
        if (!next.isEmpty() && (next.front().isLetterOrNumber() || find(next, place)))
            result += u'+';
    }
    return result;
}

} // namespace vesk
