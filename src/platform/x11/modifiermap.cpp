// SPDX-License-Identifier: MIT
#include "platform/x11/modifiermap.h"

#include "platform/x11/x11connection.h"

#include <algorithm>
#include <span>

namespace vesk {

namespace {

// Keysyms from <X11/keysymdef.h>.
constexpr xcb_keysym_t kModeSwitch = 0xff7e;
constexpr xcb_keysym_t kNumLock = 0xff7f;
constexpr xcb_keysym_t kScrollLock = 0xff14;
constexpr xcb_keysym_t kLevel3Shift = 0xfe03;
constexpr xcb_keysym_t kFirstGroupSwitch = 0xfe06; // ISO_Group_Latch
constexpr xcb_keysym_t kLastGroupSwitch = 0xfe0f;  // ISO_Last_Group_Lock
constexpr xcb_keysym_t kMetaLeft = 0xffe7;
constexpr xcb_keysym_t kMetaRight = 0xffe8;
constexpr xcb_keysym_t kAltLeft = 0xffe9;
constexpr xcb_keysym_t kAltRight = 0xffea;
constexpr xcb_keysym_t kSuperLeft = 0xffeb;
constexpr xcb_keysym_t kSuperRight = 0xffec;

/// Shift, Lock and Control have fixed bits, whatever their keys are.
constexpr unsigned kFixedBits = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_LOCK | XCB_MOD_MASK_CONTROL;

uint8_t lowestBit(unsigned bits)
{
    return static_cast<uint8_t>(bits & (~bits + 1));
}

} // namespace

ModifierMap::ModifierMap(X11Connection &connection)
    : m_connection(connection)
{
    read();
    connect(&connection, &X11Connection::eventReceived, this, &ModifierMap::onEvent);
}

Qt::KeyboardModifiers ModifierMap::modifiersOf(xcb_keycode_t key) const
{
    const unsigned mask = m_masks.value(key, 0);
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (mask & XCB_MOD_MASK_SHIFT) != 0);
    modifiers.setFlag(Qt::ControlModifier, (mask & XCB_MOD_MASK_CONTROL) != 0);
    modifiers.setFlag(Qt::AltModifier, (mask & m_bits.alt) != 0);
    modifiers.setFlag(Qt::MetaModifier, (mask & m_bits.super) != 0);
    modifiers.setFlag(Qt::GroupSwitchModifier, (mask & m_bits.groupSwitch) != 0);
    return modifiers;
}

bool ModifierMap::isCapsLock(xcb_keycode_t key) const
{
    return (m_masks.value(key, 0) & XCB_MOD_MASK_LOCK) != 0;
}

uint8_t ModifierMap::bitsOf(Qt::KeyboardModifiers modifiers) const
{
    unsigned bits = 0;
    if (modifiers & Qt::ShiftModifier)
        bits |= XCB_MOD_MASK_SHIFT;
    if (modifiers & Qt::ControlModifier)
        bits |= XCB_MOD_MASK_CONTROL;
    if (modifiers & Qt::AltModifier)
        bits |= m_bits.alt;
    if (modifiers & Qt::MetaModifier)
        bits |= m_bits.super;
    if (modifiers & Qt::GroupSwitchModifier)
        bits |= m_bits.groupSwitch;
    return static_cast<uint8_t>(bits);
}

void ModifierMap::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != XCB_MAPPING_NOTIFY || m_isStale)
        return;
    // A new layout is announced in a dozen events; read it once, after the last of them.
    m_isStale = true;
    QMetaObject::invokeMethod(this, &ModifierMap::update, Qt::QueuedConnection);
}

void ModifierMap::update()
{
    m_isStale = false;
    const Masks oldMasks = m_masks;
    const Bits oldBits = m_bits;
    read();
    if (m_masks != oldMasks || m_bits != oldBits)
        Q_EMIT changed();
    Q_EMIT keyboardChanged();
}

void ModifierMap::read()
{
    xcb_connection_t *xcb = m_connection.xcb();
    const xcb_setup_t *setup = xcb_get_setup(xcb);
    const auto modifierCookie = xcb_get_modifier_mapping(xcb);
    const auto keyCookie = xcb_get_keyboard_mapping(
        xcb, setup->min_keycode, static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1));
    const XReply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(xcb, modifierCookie, nullptr));
    const XReply<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(xcb, keyCookie, nullptr));
    if (!modifiers || !mapping)
        return;
    m_masks.clear();
    const xcb_keycode_t *keys = xcb_get_modifier_mapping_keycodes(modifiers.get());
    // Each modifier has the same number of keys; Shift comes first, in the order of the modifier bits.
    const int perModifier = modifiers->keycodes_per_modifier;
    for (int i = 0; i < xcb_get_modifier_mapping_keycodes_length(modifiers.get()); ++i) {
        if (keys[i] != 0)
            m_masks[keys[i]] |= static_cast<uint8_t>(1U << (i / perModifier));
    }
    m_bits = findBits(m_masks, mapping.get());
    m_layoutSwitches.clear();
    const auto perKey = static_cast<size_t>(mapping->keysyms_per_keycode);
    const std::span all(xcb_get_keyboard_mapping_keysyms(mapping.get()),
                        static_cast<size_t>(xcb_get_keyboard_mapping_keysyms_length(mapping.get())));
    for (auto each = m_masks.keyBegin(); each != m_masks.keyEnd(); ++each) {
        const auto onKey = all.subspan((*each - setup->min_keycode) * perKey, perKey);
        const auto isSwitch = [](xcb_keysym_t keysym) {
            return keysym >= kFirstGroupSwitch && keysym <= kLastGroupSwitch;
        };
        if (std::ranges::any_of(onKey, isSwitch))
            m_layoutSwitches.insert(*each);
    }
}

ModifierMap::Bits ModifierMap::findBits(const Masks &masks,
                                        const xcb_get_keyboard_mapping_reply_t *mapping) const
{
    const xcb_keycode_t first = xcb_get_setup(m_connection.xcb())->min_keycode;
    const auto perKey = static_cast<size_t>(mapping->keysyms_per_keycode);
    const std::span all(xcb_get_keyboard_mapping_keysyms(mapping),
                        static_cast<size_t>(xcb_get_keyboard_mapping_keysyms_length(mapping)));
    const auto bitsWith = [&](std::initializer_list<xcb_keysym_t> keysyms) {
        unsigned bits = 0;
        for (auto [key, mask] : masks.asKeyValueRange()) {
            const auto onKey = all.subspan((key - first) * perKey, perKey);
            if (std::ranges::find_first_of(onKey, keysyms) != onKey.end())
                bits |= mask & ~kFixedBits;
        }
        return bits;
    };
    // A keyboard without such a key may still get the modifier from a macro key or another client, on its
    // usual bit.
    const auto orElse = [](unsigned bits, unsigned usual) { return lowestBit(bits != 0 ? bits : usual); };
    Bits bits;
    bits.super = orElse(bitsWith({kSuperLeft, kSuperRight}), XCB_MOD_MASK_4);
    const unsigned alt = bitsWith({kAltLeft, kAltRight}) & ~unsigned{bits.super};
    const unsigned meta = bitsWith({kMetaLeft, kMetaRight}) & ~unsigned{bits.super};
    bits.alt = orElse(alt != 0 ? alt : meta, XCB_MOD_MASK_1);
    const unsigned taken = bits.super | bits.alt;
    bits.groupSwitch = lowestBit(bitsWith({kModeSwitch, kLevel3Shift}) & ~taken);
    const unsigned locks = bitsWith({kNumLock, kScrollLock}) & ~(taken | bits.groupSwitch);
    bits.locks = static_cast<uint8_t>(XCB_MOD_MASK_LOCK | locks);
    return bits;
}

} // namespace vesk
