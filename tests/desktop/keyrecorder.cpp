// SPDX-License-Identifier: MIT
#include "desktop/keyrecorder.h"

#include "desktop/desktoptest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

std::unique_ptr<KeyRecorder> KeyRecorder::open(VirtualDesktop &desktop, const QString &title,
                                               const QByteArray &windowClass)
{
    std::unique_ptr<DisplayConnection> display = DisplayConnection::open(desktop.displayName());
    if (!display)
        return nullptr;
    std::unique_ptr<KeyRecorder> recorder(new KeyRecorder(std::move(display)));
    recorder->create(title, windowClass);
    const std::optional<Window> window = desktop.windows().waitViewable(title, kBound);
    if (!window)
        return nullptr;
    if (windowClass.isEmpty())
        return recorder;
    desktop.windows().activate(*window);
    const bool isReady =
        desktop.windows().waitActive(*window, kBound) && desktop.windows().waitFocused(*window, kBound);
    return isReady ? std::move(recorder) : nullptr;
}

KeyRecorder::KeyRecorder(std::unique_ptr<DisplayConnection> display)
    : m_display(std::move(display))
{
}

KeyRecorder::~KeyRecorder() = default;

void KeyRecorder::create(const QString &title, const QByteArray &windowClass)
{
    xcb_connection_t *xcb = m_display->xcb();
    m_window = {xcb_generate_id(xcb), title, 0, {}, false};
    const quint32 values[] = {0xffffff, windowClass.isEmpty(), XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(xcb, XCB_COPY_FROM_PARENT, m_window.id, m_display->root(), 60, 60, 300, 200, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    const auto setText = [&](xcb_atom_t property, xcb_atom_t type, const QByteArray &text) {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_window.id, property, type, 8, quint32(text.size()),
                            text.constData());
    };
    setText(m_display->atom("_NET_WM_NAME"), m_display->atom("UTF8_STRING"), title.toUtf8());
    setText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, windowClass.toLower() + '\0' + windowClass + '\0');
    // Accepts the focus when it is given to it.
    constexpr std::array<quint32, 9> hints{1, 1};
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_window.id, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32,
                        quint32(hints.size()), hints.data());
    xcb_map_window(xcb, m_window.id);
    xcb_flush(xcb);
}

QStringList KeyRecorder::keys()
{
    // An answer arrives after all preceding events.
    static_cast<void>(m_display->atom("VESK_TEST"));
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_display->xcb())}) {
        if ((event->response_type & 0x7f) == XCB_KEY_PRESS)
            record(reinterpret_cast<const xcb_key_press_event_t &>(*event));
    }
    return m_keys;
}

bool KeyRecorder::grabKeyboard()
{
    const auto cookie = xcb_grab_keyboard(m_display->xcb(), 0, m_window.id, XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_grab_keyboard_reply_t> reply{xcb_grab_keyboard_reply(m_display->xcb(), cookie, nullptr)};
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void KeyRecorder::ungrabKeyboard()
{
    xcb_ungrab_keyboard(m_display->xcb(), XCB_CURRENT_TIME);
    static_cast<void>(m_display->atom("VESK_TEST"));
}

bool KeyRecorder::waitFor(const QString &key)
{
    return QTest::qWaitFor([&] { return !keys().isEmpty() && keys().constLast() == key; }, int(kBound / 1ms));
}

void KeyRecorder::record(const xcb_key_press_event_t &press)
{
    const auto cookie = xcb_get_keyboard_mapping(m_display->xcb(), press.detail, 1);
    const Reply<xcb_get_keyboard_mapping_reply_t> mapping{
        xcb_get_keyboard_mapping_reply(m_display->xcb(), cookie, nullptr)};
    const xcb_keysym_t keysym = mapping ? xcb_get_keyboard_mapping_keysyms(mapping.get())[0] : 0;
    const bool isModifier = keysym >= XK_Shift_L && keysym <= XK_Hyper_R;
    if (isModifier || keysym == 0)
        return;
    QStringList words;
    const std::pair<unsigned, QString> modifiers[] = {{XCB_MOD_MASK_4, u"Super"_s},
                                                      {XCB_MOD_MASK_CONTROL, u"Control"_s},
                                                      {XCB_MOD_MASK_1, u"Alt"_s},
                                                      {XCB_MOD_MASK_SHIFT, u"Shift"_s}};
    for (const auto &[mask, name] : modifiers) {
        if (press.state & mask)
            words.append(name);
    }
    words.append(keysym < 0x100 ? QString(QChar(quint16(keysym))) : u"0x"_s + QString::number(keysym, 16));
    m_keys.append(words.join(u'+'));
}

} // namespace vesk
