// SPDX-License-Identifier: MIT
#include "input/globalkeys.h"

#include "input/keysettings.h"
#include "platform/logging.h"

#include <algorithm>

namespace vesk {

GlobalKeys::GlobalKeys(HotKeys &hotKeys, const QString &path)
    : m_hotKeys(hotKeys)
    , m_file(path)
{
    for (const CommandRow &row : commandsWithKeys()) {
        m_keys.push_back({.command = row.command, .combination = row.combination});
        m_claims.push_back(std::make_unique<GlobalHotKey>(row.command, hotKeys));
        connect(m_claims.back().get(), &GlobalHotKey::pressed, this, &GlobalKeys::pressed);
    }
}

void GlobalKeys::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    connect(&m_file, &KeysFile::changed, this, &GlobalKeys::followChange);
    connect(&m_hotKeys, &HotKeys::layoutChanged, this, &GlobalKeys::followChange);
    followChange();
}

void GlobalKeys::retry()
{
    if (m_isStarted && apply())
        Q_EMIT changed();
}

void GlobalKeys::setFrontmost(const std::optional<QString> &bundleIdentifier)
{
    m_frontmost = bundleIdentifier.value_or(QString());
    const auto isLeftOtherwise = [this](const Key &key) { return key.isLeft != isException(key); };
    if (std::ranges::any_of(m_keys, isLeftOtherwise))
        retry();
}

bool GlobalKeys::isException(const Key &key) const
{
    return key.exceptions.contains(m_frontmost, Qt::CaseInsensitive);
}

void GlobalKeys::setShiftHeard(bool isHeard)
{
    if (m_isShiftHeard == isHeard)
        return;
    m_isShiftHeard = isHeard;
    retry();
}

bool GlobalKeys::isDoubleShiftWanted() const
{
    const Key &prompt = key(Command::SavePrompt);
    return prompt.combination == kDoubleShift && !prompt.isLeft;
}

void GlobalKeys::followChange()
{
    apply();
    // The labels printed on the keys may have changed even if the combinations have not.
    Q_EMIT changed();
}

bool GlobalKeys::apply()
{
    const std::vector<Key> oldKeys = m_keys;
    const QStringList oldHolders = m_holders;
    KeySettings settings = readKeySettings(m_file.text(), &m_hotKeys);
    // Release old combinations before claiming any: two commands may have swapped theirs.
    for (size_t i = 0; i < m_keys.size(); ++i) {
        Key &key = m_keys.at(i);
        key.exceptions = settings.exceptions.at(i);
        key.isLeft = isException(key);
        if (key.combination != settings.combinations.at(i) || key.isLeft)
            m_claims.at(i)->unregisterKey();
        key.combination = settings.combinations.at(i);
    }
    for (size_t i = 0; i < m_keys.size(); ++i) {
        const State state = claim(i);
        if (state != m_keys.at(i).state)
            qCDebug(inputLog) << rowOf(m_keys.at(i).command).words << "works:" << (state == State::Works);
        m_keys.at(i).state = state;
    }
    const bool isAnyTaken = std::ranges::find(m_keys, State::Taken, &Key::state) != m_keys.end();
    m_holders = isAnyTaken ? m_hotKeys.otherHolders() : QStringList();
    if (m_problems != settings.problems) {
        m_problems = std::move(settings.problems);
        Q_EMIT problemsChanged();
    }
    return m_keys != oldKeys || m_holders != oldHolders;
}

GlobalKeys::State GlobalKeys::claim(size_t place)
{
    const std::optional<KeyCombination> combination = m_keys.at(place).combination;
    if (!combination)
        return State::Off;
    if (combination == kDoubleShift)
        return m_isShiftHeard ? State::Works : State::NoAccess;
    if (m_keys.at(place).isLeft)
        return State::Works;
    return m_claims.at(place)->registerKey(*combination) ? State::Works : State::Taken;
}

} // namespace vesk
