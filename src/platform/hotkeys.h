// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace vesk {

/// A place on the keyboard, named by the letter that stands there on an ANSI keyboard. The user's
/// layout does not move it.
enum class KeyPosition {
    C,
    N,
    T,
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
    /// Claims a combination under `id`, in place of what `id` had claimed before. False, with `id`
    /// claiming nothing, if another application has the combination or the platform has no hot keys.
    virtual bool registerHotKey(quint32 id, KeyCombination combination) = 0;

    /// Gives the combination of `id` up; does nothing if it has none.
    virtual void unregisterHotKey(quint32 id) = 0;

Q_SIGNALS:
    /// The combination of `id` was pressed; once a press, not again for auto-repeat.
    void pressed(quint32 id);
};

} // namespace vesk
