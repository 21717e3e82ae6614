// SPDX-License-Identifier: MIT
#include "platform/x11/keystates.h"

#include "platform/x11/x11connection.h"
#include "platform/x11/xreply.h"

namespace vesk {

KeyStates keysDown(const X11Connection &connection)
{
    KeyStates states;
    const auto cookie = xcb_query_keymap(connection.xcb());
    const XReply<xcb_query_keymap_reply_t> reply(xcb_query_keymap_reply(connection.xcb(), cookie, nullptr));
    if (!reply)
        return states;
    for (size_t key = 0; key < states.size(); ++key)
        states.set(key, (reply->keys[key / 8] & (1U << (key % 8))) != 0);
    return states;
}

} // namespace vesk
