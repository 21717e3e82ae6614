// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

#include <optional>

namespace vesk {

/// A place on the keyboard, numbered as Linux numbers the keys. The user's layout does not move it. Those
/// that have a name here are named by what stands there on an ANSI keyboard.
enum class KeyPosition : quint8 {
    T = 20,
    LeftShift = 42,
    C = 46,
    N = 49,
};

struct KeyCombination
{
    KeyPosition key;
    /// Exactly these modifiers; the locks (Caps Lock, Num Lock) do not count.
    Qt::KeyboardModifiers modifiers;

    friend bool operator==(const KeyCombination &, const KeyCombination &) = default;
};

/// Key combinations that reach Vesk while any application has the keyboard, and reach no other.
class HotKeys : public QObject
{
    Q_OBJECT

public:
    /// Claims a combination under `id`, in place of what `id` had claimed before; what `id` has already
    /// stays without a gap. False, with `id` claiming nothing, if another application has the combination
    /// or the platform has no hot keys.
    virtual bool registerHotKey(quint32 id, KeyCombination combination) = 0;

    /// Gives the combination of `id` up; does nothing if it has none.
    virtual void unregisterHotKey(quint32 id) = 0;

    /// The key on which the user's layout has this character, rather without Shift than with it. None if
    /// it stands on no key, or the platform cannot tell.
    [[nodiscard]] virtual std::optional<KeyPosition> findKey(QChar character) const = 0;

    /// The character that is printed on a key in the user's layout: in upper case, and in Latin script
    /// where the keyboard has both. Null for a key without one, or if the platform cannot tell.
    [[nodiscard]] virtual QChar characterOn(KeyPosition key) const = 0;

    /// The programs, by the names that the user knows, of which one has what could not be claimed. Empty
    /// if the platform cannot tell, or only that it is one of many.
    [[nodiscard]] virtual QStringList otherHolders() const = 0;

Q_SIGNALS:
    /// The combination of `id` was pressed; once a press, not again for auto-repeat.
    void pressed(quint32 id);
    /// The user has another layout or other modifiers. What was claimed may be lost by that, until it is
    /// claimed again.
    void layoutChanged();
};

} // namespace vesk
