// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/eventposter.h"
#include "platform/eventtap.h"
#include "platform/hotkeys.h"

#include <QHash>
#include <QList>

#include <functional>

namespace vesk {

/// Hot keys that a test can press.
class MemoryHotKeys final : public HotKeys
{
    Q_OBJECT

public:
    bool registerHotKey(quint32 id, KeyCombination combination) override;
    void unregisterHotKey(quint32 id) override { m_registered.remove(id); }
    [[nodiscard]] std::optional<KeyPosition> findKey(QChar character) const override;
    [[nodiscard]] QChar characterOn(KeyPosition key) const override { return m_layout.value(key); }
    [[nodiscard]] QStringList otherHolders() const override { return m_holders; }

    /// Presses a combination. Returns whether anybody has claimed it.
    bool press(KeyCombination combination);
    /// Simulates another application that already has the combination.
    void setTaken(KeyCombination combination) { m_taken.append(combination); }
    void setFree(KeyCombination combination) { m_taken.removeAll(combination); }
    void setHolders(const QStringList &holders) { m_holders = holders; }
    /// Sets the keyboard layout. Keys that are not named have no character.
    void setLayout(const QHash<KeyPosition, QChar> &layout);
    [[nodiscard]] qsizetype registrationCount() const { return m_registered.size(); }

private:
    QHash<quint32, KeyCombination> m_registered;
    QList<KeyCombination> m_taken;
    QStringList m_holders;
    QHash<KeyPosition, QChar> m_layout;
};

/// A keyboard that a test can type on.
class MemoryEventTap final : public EventTap
{
    Q_OBJECT

public:
    bool start() override;
    [[nodiscard]] bool isKeyboardTaken() const override { return false; }

    /// Presses a key. Only reported after `start` was called.
    void press();
    void turnWheel();
    void setFlags(ModifierChange change);
    /// Sets whether the platform allows listening. If not, `start` returns false.
    void setAllowed(bool isAllowed) { m_isAllowed = isAllowed; }

private:
    bool m_isAllowed = true;
    bool m_isStarted = false;
};

/// Records what was posted, and lets a test respond like the application that gets the keys.
class MemoryEventPoster final : public EventPoster
{
public:
    [[nodiscard]] Target target() override { return m_target; }
    QCoro::Task<bool> post(Command command, Target target, std::function<bool()> isWanted) override;

    [[nodiscard]] const QList<Command> &posted() const { return m_posted; }
    /// Sets what the frontmost application does with a command.
    void setResponse(std::function<void(Command)> response) { m_response = std::move(response); }
    /// Makes posting take this long, as if a key stayed down.
    void setDelay(Clock &clock, std::chrono::milliseconds delay)
    {
        m_clock = &clock;
        m_delay = delay;
    }
    /// Gives the focus to another window.
    void setTarget(Target target) { m_target = target; }
    /// Sets whether commands can be posted. If not, `post` returns false.
    void setAllowed(bool isAllowed) { m_isAllowed = isAllowed; }

private:
    bool m_isAllowed = true;
    Target m_target{1};
    Clock *m_clock = nullptr;
    std::chrono::milliseconds m_delay{0};
    QList<Command> m_posted;
    std::function<void(Command)> m_response;
};

} // namespace vesk
