// SPDX-License-Identifier: MIT
#pragma once

#include "commands/command.h"
#include "input/globalhotkey.h"
#include "input/keysfile.h"

#include <QObject>

#include <memory>
#include <vector>

namespace vesk {

/// The global key combinations as the user wants them, and whether each of them works. Owned by the
/// application, one per program.
class GlobalKeys final : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Works,
        /// Another program has the combination; `holders` may name it.
        Taken,
        /// The user has switched it off.
        Off,
        /// Vesk does not listen to Shift, because the user has not agreed.
        NoAccess,
    };

    struct Key
    {
        Command command = {};
        /// Nullopt if it is switched off.
        std::optional<KeyCombination> combination;
        State state = State::Off;
        /// The identifiers of the applications that keep the combination while they are in front, as the user
        /// wants it.
        QStringList exceptions = {};
        /// Whether one of them is in front.
        bool isLeft = false;

        friend bool operator==(const Key &, const Key &) = default;
    };

    /// Claims nothing yet. `path` is the user's file, which need not exist.
    GlobalKeys(HotKeys &hotKeys, const QString &path);

    /// Claims the combinations, and follows the file and the keyboard layout from now on.
    void start();
    /// Tries again to claim what was taken, in case the other program has given it up.
    void retry();

    /// Must be called with the application that has come to the front: some combinations may be its own.
    void setFrontmost(const std::optional<QString> &bundleIdentifier);
    /// Must be called whenever Vesk starts or stops listening to Shift.
    void setShiftHeard(bool isHeard);

    /// In the order of `commandsWithKeys()`.
    [[nodiscard]] const std::vector<Key> &keys() const { return m_keys; }
    [[nodiscard]] const Key &key(Command command) const { return m_keys.at(static_cast<size_t>(command)); }
    /// Whether two taps of Shift save a prompt in the application in front.
    [[nodiscard]] bool isDoubleShiftWanted() const;
    /// The programs one of which has a taken combination; empty if none is taken, or the platform cannot
    /// tell.
    [[nodiscard]] const QStringList &holders() const { return m_holders; }
    /// The problems in the user's file, one or two sentences each.
    [[nodiscard]] const QStringList &problems() const { return m_problems; }
    [[nodiscard]] const QString &path() const { return m_file.path(); }
    [[nodiscard]] const HotKeys &keyboard() const { return m_hotKeys; }

Q_SIGNALS:
    /// Emitted when the combination of this command was pressed.
    void pressed(vesk::Command command);
    /// Emitted when a combination, its state, the holders, or the label of a key has changed.
    void changed();
    /// Emitted when `problems` has changed.
    void problemsChanged();

private:
    void followChange();
    /// Whether the application in front keeps this combination.
    [[nodiscard]] bool isException(const Key &key) const;
    /// Claims what can be claimed. Returns whether anything has changed.
    bool apply();
    [[nodiscard]] State claim(size_t place);

    HotKeys &m_hotKeys;
    KeysFile m_file;
    std::vector<Key> m_keys;
    std::vector<std::unique_ptr<GlobalHotKey>> m_claims;
    QString m_frontmost;
    QStringList m_holders;
    QStringList m_problems;
    bool m_isStarted = false;
    bool m_isShiftHeard = false;
};

} // namespace vesk
