// SPDX-License-Identifier: MIT
#include "platform/memory/memorykeyboard.h"

namespace vesk {

bool MemoryHotKeys::registerHotKey(quint32 id, KeyCombination combination)
{
    m_registered.remove(id);
    if (m_taken.contains(combination) || m_registered.values().contains(combination))
        return false;
    m_registered.insert(id, combination);
    return true;
}

bool MemoryHotKeys::press(KeyCombination combination)
{
    for (auto entry = m_registered.cbegin(); entry != m_registered.cend(); ++entry) {
        if (entry.value() == combination) {
            Q_EMIT pressed(entry.key());
            return true;
        }
    }
    return false;
}

std::optional<KeyPosition> MemoryHotKeys::findKey(QChar character) const
{
    for (auto [key, printed] : m_layout.asKeyValueRange()) {
        if (printed == character.toUpper())
            return key;
    }
    return std::nullopt;
}

void MemoryHotKeys::setLayout(const QHash<KeyPosition, QChar> &layout)
{
    m_layout = layout;
    Q_EMIT layoutChanged();
}

bool MemoryEventTap::start()
{
    m_isStarted = m_isStarted || m_isAllowed;
    return m_isStarted;
}

void MemoryEventTap::press()
{
    if (m_isStarted)
        Q_EMIT keyDown();
}

void MemoryEventTap::turnWheel()
{
    if (m_isStarted)
        Q_EMIT wheelTurned();
}

void MemoryEventTap::setFlags(ModifierChange change)
{
    if (m_isStarted)
        Q_EMIT flagsChanged(change);
}

QCoro::Task<bool> MemoryEventPoster::post(Command command, Target target, std::function<bool()> isWanted)
{
    if (m_clock)
        co_await m_clock->sleep(m_delay);
    if (!m_isAllowed || target != m_target || !isWanted())
        co_return false;
    m_posted.append(command);
    if (m_response)
        m_response(command);
    co_return true;
}

} // namespace vesk
