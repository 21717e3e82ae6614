// SPDX-License-Identifier: MIT
#include "components/symboltable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk::symboltable {

namespace {

struct Entry
{
    const char *symbol;
    const char *icon;
    /// Points in the reading direction, or shows lines that start at the text's side: mirrored for
    /// right-to-left languages.
    bool isDirectional = false;
};

// The build reads the icon names from these lines and embeds only those pictures.
constexpr std::array kEntries{
    Entry{.symbol = "arrow.up.and.down", .icon = "arrow-down-up"},
    Entry{.symbol = "arrow.up.forward.app", .icon = "box-arrow-up-right", .isDirectional = true},
    Entry{.symbol = "arrow.up.right", .icon = "arrow-up-right", .isDirectional = true},
    Entry{.symbol = "bubble.left.and.text.bubble.right", .icon = "chat-left-text"},
    Entry{.symbol = "character.cursor.ibeam", .icon = "input-cursor-text"},
    Entry{.symbol = "checklist", .icon = "list-check", .isDirectional = true},
    Entry{.symbol = "checkmark", .icon = "check-lg"},
    Entry{.symbol = "checkmark.circle.fill", .icon = "check-circle-fill"},
    Entry{.symbol = "chevron.down", .icon = "chevron-down"},
    Entry{.symbol = "doc.on.doc", .icon = "files"},
    Entry{.symbol = "ellipsis", .icon = "three-dots"},
    Entry{.symbol = "exclamationmark.triangle.fill", .icon = "exclamation-triangle-fill"},
    Entry{.symbol = "hand.raised.fill", .icon = "shield-lock-fill"},
    Entry{.symbol = "keyboard", .icon = "keyboard"},
    Entry{.symbol = "list.bullet", .icon = "list-ul", .isDirectional = true},
    Entry{.symbol = "magnifyingglass", .icon = "search"},
    Entry{.symbol = "pin", .icon = "pin-angle"},
    Entry{.symbol = "pin.fill", .icon = "pin-angle-fill"},
    Entry{.symbol = "plus", .icon = "plus-lg"},
    Entry{.symbol = "square.and.pencil", .icon = "pencil-square"},
    Entry{.symbol = "text.append", .icon = "journal-plus", .isDirectional = true},
    Entry{.symbol = "text.badge.plus", .icon = "bookmark-plus"},
    Entry{.symbol = "text.cursor", .icon = "cursor-text"},
    Entry{.symbol = "trash", .icon = "trash"},
    Entry{.symbol = "xmark.circle.fill", .icon = "x-circle-fill"},
};

const Entry *find(const QString &symbol)
{
    return std::ranges::find_if(
        kEntries, [&symbol](const Entry &each) { return symbol == QLatin1StringView(each.symbol); });
}

} // namespace

std::optional<QString> findPicture(const QString &symbol)
{
    const auto *const entry = find(symbol);
    if (entry == kEntries.end())
        return std::nullopt;
    return ":/vesk/symbols/"_L1 + QLatin1StringView(entry->icon) + ".svg"_L1;
}

bool isDirectional(const QString &symbol)
{
    const auto *const entry = find(symbol);
    return entry != kEntries.end() && entry->isDirectional;
}

QList<QString> symbols()
{
    QList<QString> names;
    for (const Entry &entry : kEntries)
        names.append(QLatin1StringView(entry.symbol));
    return names;
}

} // namespace vesk::symboltable
