// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"
#include "platform/x11/keyletters.h"

#include <QHash>
#include <QList>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class RawInput;
class X11Connection;

/// Hot keys as passive grabs on key positions, one for each state of the locks. They are renewed when a
/// change of the keyboard layout moves the modifiers.
class X11HotKeys final : public HotKeys
{
    Q_OBJECT

public:
    X11HotKeys(X11Connection &connection, RawInput &input);

    bool registerHotKey(quint32 id, KeyCombination combination) override;
    void unregisterHotKey(quint32 id) override;
    [[nodiscard]] std::optional<KeyPosition> findKey(QChar character) const override;
    [[nodiscard]] QChar characterOn(KeyPosition key) const override;
    [[nodiscard]] QStringList otherHolders() const override;

private:
    struct Grab
    {
        xcb_keycode_t key = 0;
        uint8_t modifiers = 0;

        friend bool operator==(const Grab &, const Grab &) = default;
    };
    struct Registration
    {
        KeyCombination combination;
        /// Nullopt while another application has it.
        std::optional<Grab> grab;
    };

    [[nodiscard]] Grab grabFor(KeyCombination combination) const;
    /// Returns nullopt, with nothing grabbed, if the combination is taken for any state of the locks.
    [[nodiscard]] std::optional<Grab> tryGrab(Grab grab);
    void ungrab(Grab grab);
    void renewGrabs();
    /// The modifiers of a grab combined with every state of the locks.
    [[nodiscard]] QList<uint16_t> withLocks(uint8_t modifiers) const;

    void onEvent(const xcb_generic_event_t *event);
    void onPress(const xcb_key_press_event_t &press);
    void onKeyReleased(xcb_keycode_t key, xcb_timestamp_t time);

    void recordRelease(xcb_keycode_t key, xcb_timestamp_t time);
    /// Keeps the held key from the application, even after some of its modifiers are released.
    void guardHeldKey();
    void endGuard();

    X11Connection &m_connection;
    RawInput &m_input;
    KeyLetters m_letters;
    QHash<quint32, Registration> m_registrations;
    /// The bits of the locks at the time of the grabs.
    uint8_t m_lockBits;
    QList<Grab> m_guards;
    /// The last press that was acted on; its key is 0 before the first.
    Grab m_held;
    /// When each key was released, or seemed to be, since its last press: the first time and the last. A
    /// release arrives as an event of the grab or as raw input, depending on whether the grab was given back
    /// by then.
    QHash<xcb_keycode_t, QList<xcb_timestamp_t>> m_releases;
};

} // namespace vesk
