// SPDX-License-Identifier: MIT
#pragma once

#include "input/globalhotkey.h"
#include "input/hotkeytable.h"
#include "input/keysfile.h"

#include <QObject>

#include <memory>
#include <vector>

namespace vesk {

/// The combinations by which Vesk is reached from everywhere, as the user wants them, and whether each of
/// them works. Owned by the application, one for the program.
class GlobalKeys final : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Works,
        /// Another program has the combination; `holders` may tell which.
        Taken,
        /// The user has switched it off.
        Off,
        /// Shift is not listened to, as the user does not let Vesk.
        NoAccess,
    };

    struct Key
    {
        HotKeyRow row;
        /// None if it is switched off.
        std::optional<KeyCombination> combination;
        State state = State::Off;

        friend bool operator==(const Key &left, const Key &right)
        {
            return left.combination == right.combination && left.state == right.state;
        }
    };

    /// Claims nothing yet. `path` is that of the user's file; it need not exist.
    GlobalKeys(HotKeys &hotKeys, const QString &path);

    /// Claims the combinations, and from then on follows the file and the keyboard's layout.
    void start();
    /// Tries again to claim what was taken: the other program may have given it up.
    void retry();

    /// Leaves one combination to the applications, or takes it again.
    void setLeftToApplications(quint32 id, bool isLeft);
    /// Tells whether Shift is listened to.
    void setShiftHeard(bool isHeard);

    /// In the order of `hotkeytable::kAll`.
    [[nodiscard]] const std::vector<Key> &keys() const { return m_keys; }
    [[nodiscard]] const Key &key(const HotKeyRow &row) const { return m_keys.at(row.id - 1); }
    /// Whether two taps of Shift are to save a prompt.
    [[nodiscard]] bool isDoubleShiftWanted() const;
    /// The programs of which one has what is taken; empty if nothing is, or nobody can tell.
    [[nodiscard]] const QStringList &holders() const { return m_holders; }
    /// What is wrong with the user's file, one sentence or two each.
    [[nodiscard]] const QStringList &problems() const { return m_problems; }
    [[nodiscard]] const QString &path() const { return m_file.path(); }
    [[nodiscard]] const HotKeys &keyboard() const { return m_hotKeys; }

Q_SIGNALS:
    /// The combination of `hotkeytable`'s row with this `id` was pressed.
    void pressed(quint32 id);
    /// A combination, its state, the holders, or what is printed on a key is another one.
    void changed();
    /// There are other problems than before, or none any more.
    void problemsChanged();

private:
    void followChange();
    /// Claims what can be claimed. Whether anything is not as it was.
    bool apply();
    [[nodiscard]] State claim(size_t place);

    HotKeys &m_hotKeys;
    KeysFile m_file;
    std::vector<Key> m_keys;
    std::vector<std::unique_ptr<GlobalHotKey>> m_claims;
    std::vector<bool> m_isLeft;
    QStringList m_holders;
    QStringList m_problems;
    bool m_isStarted = false;
    bool m_isShiftHeard = false;
};

} // namespace vesk
