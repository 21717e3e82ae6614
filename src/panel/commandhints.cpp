// SPDX-License-Identifier: MIT
#include "panel/commandhints.h"

#include "commands/command.h"
#include "components/keylabels.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Entry
{
    /// nullopt for a hint about typing.
    std::optional<Command> command;
    /// Separated by spaces; used if there is no command.
    QStringView keys;
    const char *hint;
};

constexpr std::array kEntries{
    Entry{.command = Command::Capture,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Save selected text, or write a quick note")},
    Entry{.command = Command::CaptureToLastNote,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Add the selection to your last note")},
    Entry{.command = Command::Toggle,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Open or hide Vesk")},
    Entry{.command = Command::Write,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Open Vesk and write a new note")},
    Entry{.command = Command::SavePrompt,
          .keys = {},
          .hint = QT_TRANSLATE_NOOP("vesk::CommandHints", "Save selected text as a prompt")},
    Entry{.command = {},
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
        if (!kEntries.at(i).command || !m_keys->glyphs(*kEntries.at(i).command).isEmpty())
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
    const size_t entry = m_shown.at(index.row());
    switch (role) {
    case KeysRole:
        return keysOf(entry);
    case HintRole:
        return hintOf(entry);
    case IsTakenRole:
        return kEntries.at(entry).command && m_keys->isTaken(*kEntries.at(entry).command);
    case SpokenRole: {
        QStringList keys = keysOf(entry);
        for (QString &key : keys)
            key = KeyLabels::label(key, KeyLabels::Global);
        return tr("%1: %2", "keys: what they do").arg(keys.join(u' '), hintOf(entry));
    }
    default:
        return {};
    }
}

QStringList CommandHints::keysOf(size_t entry) const
{
    const Entry &shown = kEntries.at(entry);
    return shown.command ? m_keys->glyphs(*shown.command) : shown.keys.toString().split(u' ');
}

QString CommandHints::hintOf(size_t entry) const
{
    const Entry &shown = kEntries.at(entry);
    const bool isTaken = shown.command && m_keys->isTaken(*shown.command);
    return isTaken ? tr("%1 (keys taken by %2)").arg(tr(shown.hint), m_keys->holders()) : tr(shown.hint);
}

QHash<int, QByteArray> CommandHints::roleNames() const
{
    return {{KeysRole, "keys"}, {HintRole, "hint"}, {IsTakenRole, "isTaken"}, {SpokenRole, "spoken"}};
}

} // namespace vesk
