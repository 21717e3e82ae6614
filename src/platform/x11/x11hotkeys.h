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

/// Hot keys as passive grabs on the keys' positions, one for each state of the locks. They follow the
/// modifiers when a change of the keyboard's layout moves these.
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
        /// None while another application has it.
        std::optional<Grab> grab;
    };

    [[nodiscard]] Grab grabFor(KeyCombination combination) const;
    /// None, with nothing grabbed, if some state of the locks was taken already.
    [[nodiscard]] std::optional<Grab> tryGrab(Grab grab);
    void ungrab(Grab grab);
    void renewGrabs();
    /// The modifiers of a grab together with every state of the locks.
    [[nodiscard]] QList<uint16_t> withLocks(uint8_t modifiers) const;

    void onEvent(const xcb_generic_event_t *event);
    void onPress(const xcb_key_press_event_t &press);
    void onKeyReleased(xcb_keycode_t key, xcb_timestamp_t time);

    /// Keeps the held key from the application, also once some of its modifiers are let go of.
    void guardHeldKey();
    void endGuard();

    X11Connection &m_connection;
    RawInput &m_input;
    KeyLetters m_letters;
    QHash<quint32, Registration> m_registrations;
    /// The locks' bits with which all grabs were made.
    uint8_t m_lockBits;
    QList<Grab> m_guards;
    /// The last press that was acted upon; its key is 0 before the first.
    Grab m_held;
    /// When the held key went up, or seemed to; none since its last press. Whether a key goes up as an
    /// event of the grab or as raw input depends on whether the grab was given back by then.
    std::optional<xcb_timestamp_t> m_releaseTime;
};

} // namespace vesk
