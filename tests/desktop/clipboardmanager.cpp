// SPDX-License-Identifier: MIT
#include "desktop/clipboardmanager.h"

using namespace std::chrono_literals;

namespace vesk {

ClipboardManager::ClipboardManager(const QString &displayName, Manner manner)
    : m_displayName(displayName)
    , m_thread(
          SelectionThread::own(displayName, "CLIPBOARD_MANAGER",
                               [this, manner](DisplayConnection &display, const xcb_generic_event_t &event) {
                                   const auto request = SelectionThread::requestIn(event);
                                   if (request && manner == Manner::Ordinary)
                                       save(display, *request);
                               }))
{
}

void ClipboardManager::save(DisplayConnection &display, const xcb_selection_request_event_t &request)
{
    const std::unique_ptr<DisplayConnection> reader = DisplayConnection::open(m_displayName);
    const auto text = reader ? reader->readForm("CLIPBOARD", "UTF8_STRING", 1s) : std::nullopt;
    if (text)
        m_saved = ClipboardHolder::hold(m_displayName, {{"UTF8_STRING", *text}});
    SelectionThread::notify(display, request, text.has_value());
}

} // namespace vesk
