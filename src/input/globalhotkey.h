// SPDX-License-Identifier: MIT
#pragma once

#include "commands/command.h"

#include <QObject>

namespace vesk {

/// The global key combination of one command. Owned by the class that acts on it.
class GlobalHotKey final : public QObject
{
    Q_OBJECT

public:
    /// Claims nothing yet. There is one object for each command. `hotKeys` must outlive this object.
    GlobalHotKey(Command command, HotKeys &hotKeys);
    /// Gives up the combination.
    ~GlobalHotKey() override;

    /// Claims a combination in place of the previous one. Returns false, with nothing claimed, if it is
    /// taken.
    bool registerKey(KeyCombination combination);
    void unregisterKey();
    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }

Q_SIGNALS:
    void pressed(vesk::Command command);

private:
    /// The platform knows the command by its number.
    [[nodiscard]] quint32 id() const { return static_cast<quint32>(m_command); }

    Command m_command;
    HotKeys &m_hotKeys;
    bool m_isRegistered = false;
};

} // namespace vesk
