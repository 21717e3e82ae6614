// SPDX-License-Identifier: MIT
#include "platform/x11/keystates.h"

#include "platform/x11/x11connection.h"
#include "platform/x11/xreply.h"

#include <QList>

#include <cstddef>

namespace vesk {

namespace {

constexpr size_t kBytes = KeyStates().size() / 8;

KeyStates statesIn(const uint8_t *bytes)
{
    KeyStates states;
    for (size_t key = 0; key < states.size(); ++key)
        states.set(key, (bytes[key / 8] & (1U << (key % 8))) != 0);
    return states;
}

/// The keyboard that receives keys sent with XTEST.
xcb_input_device_id_t masterKeyboard(const X11Connection &connection,
                                     const xcb_input_xi_query_device_reply_t *devices)
{
    const auto cookie = xcb_input_xi_get_client_pointer(connection.xcb(), XCB_WINDOW_NONE);
    const XReply<xcb_input_xi_get_client_pointer_reply_t> pointer(
        xcb_input_xi_get_client_pointer_reply(connection.xcb(), cookie, nullptr));
    auto each = xcb_input_xi_query_device_infos_iterator(devices);
    for (; each.rem > 0; xcb_input_xi_device_info_next(&each)) {
        if (pointer && each.data->deviceid == pointer->deviceid)
            return each.data->attachment;
    }
    return 0;
}

KeyStates statesIn(const xcb_input_query_device_state_reply_t *reply)
{
    // Each input class, such as the keys, begins with its number and its length.
    const auto *bytes = reinterpret_cast<const uint8_t *>(reply + 1);
    const uint8_t *const end = bytes + size_t{reply->length} * 4;
    for (int i = 0; i < reply->num_classes && bytes + 2 <= end && bytes[1] != 0; ++i, bytes += bytes[1]) {
        constexpr size_t kKeys = offsetof(xcb_input_key_state_t, keys);
        if (bytes[0] == XCB_INPUT_INPUT_CLASS_KEY && bytes[1] >= kKeys + kBytes && bytes + bytes[1] <= end)
            return statesIn(bytes + kKeys);
    }
    return {};
}

} // namespace

KeyStates keysDown(const X11Connection &connection)
{
    const auto cookie = xcb_query_keymap(connection.xcb());
    const XReply<xcb_query_keymap_reply_t> reply(xcb_query_keymap_reply(connection.xcb(), cookie, nullptr));
    return reply ? statesIn(reply->keys) : KeyStates();
}

HeldKeys heldKeys(const X11Connection &connection)
{
    xcb_connection_t *xcb = connection.xcb();
    const auto cookie = xcb_input_xi_query_device(xcb, XCB_INPUT_DEVICE_ALL);
    const XReply<xcb_input_xi_query_device_reply_t> devices(
        xcb_input_xi_query_device_reply(xcb, cookie, nullptr));
    HeldKeys held;
    if (!devices)
        return held;
    struct Question
    {
        xcb_input_device_id_t device;
        xcb_input_query_device_state_cookie_t states;
        xcb_input_xi_get_property_cookie_t mark;
    };
    QList<Question> questions;
    const xcb_input_device_id_t master = masterKeyboard(connection, devices.get());
    const xcb_atom_t programsMark = connection.atom("XTEST Device");
    auto each = xcb_input_xi_query_device_infos_iterator(devices.get());
    for (; each.rem > 0; xcb_input_xi_device_info_next(&each)) {
        const xcb_input_device_id_t device = each.data->deviceid;
        if (each.data->type != XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD || each.data->attachment != master)
            continue;
        questions.append({.device = device,
                          .states = xcb_input_query_device_state(xcb, static_cast<uint8_t>(device)),
                          .mark = xcb_input_xi_get_property(xcb, device, 0, programsMark,
                                                            XCB_GET_PROPERTY_TYPE_ANY, 0, 1)});
    }
    for (const Question &question : std::as_const(questions)) {
        const XReply<xcb_input_query_device_state_reply_t> states(
            xcb_input_query_device_state_reply(xcb, question.states, nullptr));
        const XReply<xcb_input_xi_get_property_reply_t> mark(
            xcb_input_xi_get_property_reply(xcb, question.mark, nullptr));
        const KeyStates down = states ? statesIn(states.get()) : KeyStates();
        if (mark && mark->num_items > 0) {
            held.byPrograms |= down;
            held.programsDevice = question.device;
        } else {
            held.byUser |= down;
        }
    }
    return held;
}

} // namespace vesk
