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
    const char *global;
    /// Null if it is the same.
    const char *window = nullptr;
};

constexpr std::array kEntries{
    Entry{.glyph = u"\u2318",
          .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Super"),
          .window = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Ctrl")},
    Entry{.glyph = u"\u2325", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Alt")},
    Entry{.glyph = u"\u2303", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Ctrl")},
    Entry{.glyph = u"\u21E7", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Shift")},
    Entry{.glyph = u"\u21A9", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Enter")},
    Entry{.glyph = u"\u232B", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Backspace")},
    Entry{.glyph = u"\u2423", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Space")},
    Entry{.glyph = u"\u21E5", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Tab")},
    Entry{.glyph = u"\u2191", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Up")},
    Entry{.glyph = u"\u2193", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Down")},
    Entry{.glyph = u"esc", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Esc")},
    // These have no glyph and use their names from Keys.conf.
    Entry{.glyph = u"Print", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Print")},
    Entry{.glyph = u"Home", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Home")},
    Entry{.glyph = u"End", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "End")},
    Entry{.glyph = u"PageUp", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "PageUp")},
    Entry{.glyph = u"PageDown", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "PageDown")},
    Entry{.glyph = u"Left", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Left")},
    Entry{.glyph = u"Right", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Right")},
    Entry{.glyph = u"Insert", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Insert")},
    Entry{.glyph = u"Delete", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Delete")},
    Entry{.glyph = u"Pause", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Pause")},
    Entry{.glyph = u"Menu", .global = QT_TRANSLATE_NOOP("vesk::KeyLabels", "Menu")},
};

/// nullopt if this is not the glyph of a key.
std::optional<QString> find(QStringView glyph, KeyLabels::Place place)
{
    const auto *const entry =
        std::ranges::find_if(kEntries, [glyph](const Entry &each) { return each.glyph == glyph; });
    if (entry == kEntries.end())
        return std::nullopt;
    const bool isOther = place == KeyLabels::Window && entry->window;
    return KeyLabels::tr(isOther ? entry->window : entry->global);
}

} // namespace

QString KeyLabels::label(const QString &glyph, Place place)
{
    return find(glyph, place).value_or(glyph);
}

QString KeyLabels::spelt(const QString &text, Place place)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const std::optional<QString> key = find(QStringView(text).mid(i, 1), place);
        if (!key) {
            result += text.at(i);
            continue;
        }
        result += *key;
        const QStringView next = QStringView(text).mid(i + 1, 1);
        // The next key belongs to the same combination.
        if (!next.isEmpty() && (next.front().isLetterOrNumber() || find(next, place)))
            result += u'+';
    }
    return result;
}

} // namespace vesk
