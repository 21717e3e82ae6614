// SPDX-License-Identifier: MIT
#include "virtualdesktop/selectionthread.h"

#include <array>
#include <cstring>
#include <poll.h>

namespace vesk {

std::unique_ptr<SelectionThread> SelectionThread::own(const QString &displayName, const char *selection,
                                                      Handler handler)
{
    std::unique_ptr<DisplayConnection> display = DisplayConnection::open(displayName);
    if (!display)
        return nullptr;
    const xcb_atom_t atom = display->atom(selection);
    xcb_set_selection_owner(display->xcb(), display->window(), atom, XCB_CURRENT_TIME);
    // Any answer proves that the server has processed the preceding requests.
    static_cast<void>(display->atom("TARGETS"));
    return std::unique_ptr<SelectionThread>(
        new SelectionThread(std::move(display), atom, std::move(handler)));
}

SelectionThread::SelectionThread(std::unique_ptr<DisplayConnection> display, xcb_atom_t selection,
                                 Handler handler)
    : m_display(std::move(display))
    , m_selection(selection)
    , m_handler(std::move(handler))
    , m_thread([this] { serve(); })
{
}

SelectionThread::~SelectionThread()
{
    m_isEnding = true;
    m_thread.join();
}

void SelectionThread::claimAgain()
{
    xcb_set_selection_owner(m_display->xcb(), window(), m_selection, XCB_CURRENT_TIME);
    xcb_flush(m_display->xcb());
}

void SelectionThread::serve()
{
    constexpr int kPollMilliseconds = 20;
    xcb_connection_t *xcb = m_display->xcb();
    while (!m_isEnding && !xcb_connection_has_error(xcb)) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(xcb)})
            m_handler(*m_display, *event);
        xcb_flush(xcb);
        pollfd descriptor = {xcb_get_file_descriptor(xcb), POLLIN, 0};
        poll(&descriptor, 1, kPollMilliseconds);
    }
}

std::optional<xcb_selection_request_event_t> SelectionThread::requestIn(const xcb_generic_event_t &event)
{
    if ((event.response_type & 0x7f) != XCB_SELECTION_REQUEST)
        return std::nullopt;
    return reinterpret_cast<const xcb_selection_request_event_t &>(event);
}

void SelectionThread::write(DisplayConnection &display, const xcb_selection_request_event_t &request,
                            xcb_atom_t type, quint8 format, const QByteArray &bytes)
{
    xcb_change_property(display.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property, type,
                        format, quint32(bytes.size() * 8 / format), bytes.constData());
}

void SelectionThread::writeAtoms(DisplayConnection &display, const xcb_selection_request_event_t &request,
                                 const QList<xcb_atom_t> &atoms)
{
    write(display, request, XCB_ATOM_ATOM, 32,
          QByteArray(reinterpret_cast<const char *>(atoms.constData()),
                     atoms.size() * qsizetype(sizeof(xcb_atom_t))));
}

void SelectionThread::notify(DisplayConnection &display, const xcb_selection_request_event_t &request,
                             bool isGiven)
{
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.time = request.time;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = isGiven ? request.property : xcb_atom_t(XCB_ATOM_NONE);
    // An event on the wire is larger than this struct.
    std::array<char, 32> bytes{};
    std::memcpy(bytes.data(), &answer, sizeof answer);
    xcb_send_event(display.xcb(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, bytes.data());
}

} // namespace vesk
