// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

#include <optional>

namespace vesk {

/// A position on the keyboard, numbered as Linux numbers the keys; independent of the user's layout. The
/// named ones are named after the key at that position on an ANSI keyboard.
enum class KeyPosition : quint8 {
    T = 20,
    LeftShift = 42,
    C = 46,
    N = 49,
};

struct KeyCombination
{
    KeyPosition key;
    /// Exactly these modifiers; Caps Lock and Num Lock are ignored.
    Qt::KeyboardModifiers modifiers;

    friend bool operator==(const KeyCombination &, const KeyCombination &) = default;
};

/// Key combinations that reach Vesk, and nobody else, whichever application has the focus.
class HotKeys : public QObject
{
    Q_OBJECT

public:
    /// Claims a combination for `id`, replacing what `id` claimed before. If `id` already has this
    /// combination, it keeps it without a gap. Returns false, with nothing claimed for `id`, if another
    /// application has the combination or the platform has no hot keys.
    virtual bool registerHotKey(quint32 id, KeyCombination combination) = 0;

    /// Gives up the combination of `id`. Does nothing if it has none.
    virtual void unregisterHotKey(quint32 id) = 0;

    /// Returns the key that produces this character in the user's layout, preferably without Shift. Nullopt
    /// if no key does, or the platform cannot tell.
    [[nodiscard]] virtual std::optional<KeyPosition> findKey(QChar character) const = 0;

    /// Returns the character printed on a key in the user's layout, in upper case, and in Latin script if the
    /// keyboard has both. Null if there is none, or the platform cannot tell.
    [[nodiscard]] virtual QChar characterOn(KeyPosition key) const = 0;

    /// Returns the names of the programs one of which has the combination that could not be claimed. Empty if
    /// the platform cannot tell, or if there are too many to be of help.
    [[nodiscard]] virtual QStringList otherHolders() const = 0;

Q_SIGNALS:
    /// Emitted when the combination of `id` was pressed; once per press, not for auto-repeat.
    void pressed(quint32 id);
    /// Emitted when the user's layout or modifiers have changed. Combinations may be lost until they are
    /// claimed again.
    void layoutChanged();
};

} // namespace vesk
