// SPDX-License-Identifier: MIT
#include "virtualdesktop/keyboard.h"

#include <ranges>
#include <thread>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace vesk {

namespace {

constexpr quint16 kSuperAlt = XCB_MOD_MASK_4 | XCB_MOD_MASK_1;

} // namespace

Keyboard::Keyboard(DisplayConnection &display, Device device)
    : m_display(display)
    , m_hardware(device == Device::Hardware ? findHardware() : quint8{0})
{
    const xcb_setup_t *setup = xcb_get_setup(display.xcb());
    const auto cookie = xcb_get_keyboard_mapping(display.xcb(), setup->min_keycode,
                                                 quint8(setup->max_keycode - setup->min_keycode + 1));
    m_mapping.reset(xcb_get_keyboard_mapping_reply(display.xcb(), cookie, nullptr));
}

Keyboard::Place Keyboard::find(xcb_keysym_t key) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_display.xcb());
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(m_mapping.get());
    const int levels = m_mapping->keysyms_per_keycode;
    const int keys = setup->max_keycode - setup->min_keycode + 1;
    for (int level = 0; level < 2; ++level) {
        for (int index = 0; index < keys; ++index) {
            if (keysyms[index * levels + level] == key)
                return {xcb_keycode_t(setup->min_keycode + index), level == 1};
        }
    }
    return {};
}

quint8 Keyboard::findHardware() const
{
    xcb_connection_t *xcb = m_display.xcb();
    const Reply<xcb_input_xi_query_version_reply_t> version{
        xcb_input_xi_query_version_reply(xcb, xcb_input_xi_query_version(xcb, 2, 2), nullptr)};
    const Reply<xcb_input_xi_query_device_reply_t> devices{
        xcb_input_xi_query_device_reply(xcb, xcb_input_xi_query_device(xcb, XCB_INPUT_DEVICE_ALL), nullptr)};
    if (!devices)
        return 0;
    auto each = xcb_input_xi_query_device_infos_iterator(devices.get());
    for (; each.rem > 0; xcb_input_xi_device_info_next(&each)) {
        const QByteArray name(xcb_input_xi_device_info_name(each.data), each.data->name_len);
        if (each.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && !name.contains("XTEST"))
            return quint8(each.data->deviceid);
    }
    return 0;
}

void Keyboard::send(xcb_keysym_t key, quint8 type)
{
    const Place place = find(key);
    if (place.code == 0)
        return;
    if (m_hardware != 0) {
        const quint8 first = xcb_get_extension_data(m_display.xcb(), &xcb_input_id)->first_event;
        type = first + (type == XCB_KEY_PRESS ? XCB_INPUT_DEVICE_KEY_PRESS : XCB_INPUT_DEVICE_KEY_RELEASE);
    }
    xcb_test_fake_input(m_display.xcb(), type, place.code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, m_hardware);
    xcb_flush(m_display.xcb());
}

void Keyboard::press(xcb_keysym_t key)
{
    send(key, XCB_KEY_PRESS);
}

void Keyboard::release(xcb_keysym_t key)
{
    send(key, XCB_KEY_RELEASE);
}

void Keyboard::tap(const QList<xcb_keysym_t> &keys, std::chrono::milliseconds hold)
{
    for (const xcb_keysym_t key : keys)
        press(key);
    std::this_thread::sleep_for(hold);
    for (const xcb_keysym_t key : std::ranges::reverse_view(keys))
        release(key);
}

void Keyboard::type(const QString &text)
{
    for (const QChar character : text) {
        // The keysyms of Latin-1 characters are their code points.
        const xcb_keysym_t key = character.unicode();
        if (find(key).needsShift)
            tap({XK_Shift_L, key});
        else
            tap({key});
    }
}

void Keyboard::takeHotKey(xcb_keysym_t key)
{
    xcb_grab_key(m_display.xcb(), 0, m_display.root(), kSuperAlt, find(key).code, XCB_GRAB_MODE_ASYNC,
                 XCB_GRAB_MODE_ASYNC);
    xcb_flush(m_display.xcb());
}

bool Keyboard::grab()
{
    const auto cookie = xcb_grab_keyboard(m_display.xcb(), 0, m_display.root(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_grab_keyboard_reply_t> reply{xcb_grab_keyboard_reply(m_display.xcb(), cookie, nullptr)};
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void Keyboard::ungrab()
{
    xcb_ungrab_keyboard(m_display.xcb(), XCB_CURRENT_TIME);
    xcb_flush(m_display.xcb());
}

bool Keyboard::isHotKeyTaken(xcb_keysym_t key) const
{
    // The server is grabbed from the attempt until its end, so it takes the key from nobody.
    xcb_connection_t *xcb = m_display.xcb();
    const xcb_keycode_t code = find(key).code;
    xcb_grab_server(xcb);
    const xcb_void_cookie_t cookie = xcb_grab_key_checked(xcb, 0, m_display.root(), kSuperAlt, code,
                                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_generic_error_t> error{xcb_request_check(xcb, cookie)};
    if (!error)
        xcb_ungrab_key(xcb, code, m_display.root(), kSuperAlt);
    xcb_ungrab_server(xcb);
    xcb_flush(xcb);
    return error != nullptr;
}

} // namespace vesk
