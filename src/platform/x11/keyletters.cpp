// SPDX-License-Identifier: MIT
#include "platform/x11/keyletters.h"

#include "platform/x11/x11connection.h"

#include <xkbcommon/xkbcommon.h>

namespace vesk {

namespace {

/// The keys of the numeric keypad have the same characters as the row of digits.
constexpr bool isOnNumberBlock(xcb_keysym_t keysym)
{
    constexpr xcb_keysym_t kFirst = 0xff80; // XK_KP_Space
    constexpr xcb_keysym_t kLast = 0xffbd;  // XK_KP_Equal
    return keysym >= kFirst && keysym <= kLast;
}

/// Null if this is not a visible character, or does not fit into one UTF-16 unit.
QChar characterOf(xcb_keysym_t keysym)
{
    const uint32_t character = isOnNumberBlock(keysym) ? 0 : xkb_keysym_to_utf32(keysym);
    if (character == 0 || character > 0xffff)
        return {};
    const QChar unit(static_cast<char16_t>(character));
    return unit.isPrint() && !unit.isSpace() ? unit.toUpper() : QChar();
}

bool isLatin(QChar character)
{
    return character.unicode() < 0x80 || character.script() == QChar::Script_Latin;
}

} // namespace

KeyLetters::KeyLetters(X11Connection &connection)
    : m_connection(connection)
{
}

std::optional<KeyPosition> KeyLetters::findKey(QChar character) const
{
    read();
    for (const auto *keys : {&m_plain, &m_shifted}) {
        const auto found = keys->constFind(character.toUpper());
        if (found != keys->cend())
            return *found;
    }
    return std::nullopt;
}

QChar KeyLetters::characterOn(KeyPosition key) const
{
    read();
    return m_printed.value(key);
}

void KeyLetters::read() const
{
    if (m_isRead)
        return;
    m_isRead = true;
    m_printed.clear();
    m_plain.clear();
    m_shifted.clear();
    xcb_connection_t *xcb = m_connection.xcb();
    const xcb_keycode_t first = xcb_get_setup(xcb)->min_keycode;
    const auto count = static_cast<uint8_t>(xcb_get_setup(xcb)->max_keycode - first + 1);
    const XReply<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(xcb, xcb_get_keyboard_mapping(xcb, first, count), nullptr));
    if (!mapping || first < 8)
        return;
    const auto perKey = static_cast<size_t>(mapping->keysyms_per_keycode);
    const std::span all(xcb_get_keyboard_mapping_keysyms(mapping.get()),
                        static_cast<size_t>(xcb_get_keyboard_mapping_keysyms_length(mapping.get())));
    for (size_t i = 0; (i + 1) * perKey <= all.size(); ++i)
        readKey(KeyPosition(first + i - 8), all.subspan(i * perKey, perKey));
}

void KeyLetters::readKey(KeyPosition key, std::span<const xcb_keysym_t> keysyms) const
{
    // The first two belong to the first layout, without and with Shift, and the next two to the second
    // layout.
    for (size_t i = 0; i < std::min<size_t>(keysyms.size(), 4); ++i) {
        const QChar character = characterOf(keysyms[i]);
        if (character.isNull())
            continue;
        QHash<QChar, KeyPosition> &keys = i % 2 == 0 ? m_plain : m_shifted;
        // If two keys have the same character, use the first.
        if (!keys.contains(character))
            keys.insert(character, key);
        QChar &printed = m_printed[key];
        if (i % 2 == 0 && (printed.isNull() || (!isLatin(printed) && isLatin(character))))
            printed = character;
    }
}

} // namespace vesk
