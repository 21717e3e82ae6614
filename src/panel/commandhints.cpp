// SPDX-License-Identifier: MIT
#include "panel/commandhints.h"

#include "input/hotkeytable.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Entry
{
    /// Null for what is typed.
    const HotKeyRow *row;
    /// Separated by spaces, if there is no row.
    QStringView keys;
    const char *hint;
};

constexpr std::array kEntries{
    Entry{.row = &hotkeytable::kQuickNote,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Save selected text, or write a quick note")},
    Entry{.row = &hotkeytable::kAppend,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Add the selection to your last note")},
    Entry{.row = &hotkeytable::kOpen,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Open or hide Vesk")},
    Entry{.row = &hotkeytable::kWrite,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Open Vesk and write a new note")},
    Entry{.row = &hotkeytable::kSavePrompt,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Save selected text as a prompt")},
    Entry{.row = nullptr,
          .keys = u"[ ] \u2423",
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Start a checklist while typing")},
};

} // namespace

void CommandHints::setCommandKeys(CommandKeys *keys)
{
    if (m_keys == keys)
        return;
    if (m_keys)
        m_keys->disconnect(this);
    m_keys = keys;
    if (keys)
        connect(keys, &CommandKeys::changed, this, &CommandHints::reload);
    reload();
    Q_EMIT commandKeysChanged();
}

void CommandHints::reload()
{
    beginResetModel();
    m_shown.clear();
    for (size_t i = 0; m_keys && i < kEntries.size(); ++i) {
        if (!kEntries.at(i).row || !m_keys->glyphs(*kEntries.at(i).row).isEmpty())
            m_shown.append(i);
    }
    endResetModel();
}

int CommandHints::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant CommandHints::data(const QModelIndex &index, int role) const
{
    if (!m_keys || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = kEntries.at(m_shown.at(index.row()));
    const bool isTaken = entry.row && m_keys->isTaken(*entry.row);
    switch (role) {
    case KeysRole:
        return entry.row ? m_keys->glyphs(*entry.row) : entry.keys.toString().split(u' ');
    case HintRole:
        return isTaken ? tr("%1 (keys taken by %2)").arg(tr(entry.hint), m_keys->holders()) : tr(entry.hint);
    case IsTakenRole:
        return isTaken;
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandHints::roleNames() const
{
    return {{KeysRole, "keys"}, {HintRole, "hint"}, {IsTakenRole, "isTaken"}};
}

} // namespace vesk
