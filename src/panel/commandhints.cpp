// SPDX-License-Identifier: MIT
#include "panel/commandhints.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Entry
{
    /// Separated by spaces.
    QStringView keys;
    const char *hint;
};

constexpr std::array kEntries{
    Entry{.keys = u"\u2325 \u2318 N",
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Save selected text, or write a quick note")},
    Entry{.keys = u"\u2325 \u21E7 \u2318 N",
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Add the selection to your last note")},
    Entry{.keys = u"\u2325 \u2318 T", .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Open or hide Vesk")},
    Entry{.keys = u"\u2303 \u2325 \u2318 N",
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Open Vesk and write a new note")},
    Entry{.keys = u"\u21E7 \u21E7",
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Save selected text as a prompt")},
    Entry{.keys = u"[ ] \u2423",
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Start a checklist while typing")},
};

} // namespace

int CommandHints::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kEntries.size());
}

QVariant CommandHints::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = kEntries.at(static_cast<size_t>(index.row()));
    switch (role) {
    case KeysRole:
        return entry.keys.toString().split(u' ');
    case HintRole:
        return tr(entry.hint);
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandHints::roleNames() const
{
    return {{KeysRole, "keys"}, {HintRole, "hint"}};
}

} // namespace vesk
