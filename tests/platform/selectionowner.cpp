// SPDX-License-Identifier: MIT
#include "selectionowner.h"

#include <thread>

using vesk::SelectionThread;

namespace {

constexpr qsizetype kPiece = 100'000;

} // namespace

SelectionOwner::SelectionOwner(QByteArray text, Manner manner, const char *selection)
    : m_text(std::move(text))
    , m_manner(manner)
    , m_thread(SelectionThread::own(
          qEnvironmentVariable("DISPLAY"), selection,
          [this](Display &display, const xcb_generic_event_t &event) { handle(display, event); }))
{
}

void SelectionOwner::handle(Display &display, const xcb_generic_event_t &event)
{
    if (const auto request = SelectionThread::requestIn(event))
        return answer(display, *request);
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (change.atom == m_property && change.state == XCB_PROPERTY_DELETE)
        sendNextPiece(display);
}

void SelectionOwner::answer(Display &display, const Request &request)
{
    if (request.target == display.atom("TARGETS")) {
        if (m_manner == Manner::Replaced && !m_successor)
            m_successor = std::make_unique<SelectionOwner>("password", Manner::Whole);
        sendTargets(display, request);
    } else if (request.target == display.atom("x-kde-passwordManagerHint")) {
        if (m_manner == Manner::SilentSecret)
            return;
        SelectionThread::write(display, request, XCB_ATOM_STRING, 8, "secret");
        SelectionThread::notify(display, request, true);
    } else if (request.target == display.atom("UTF8_STRING")) {
        ++m_readings;
        sendText(display, request);
    } else if (m_manner == Manner::Silent) {
        ++m_readings;
    } else {
        SelectionThread::notify(display, request, false);
    }
}

void SelectionOwner::sendTargets(Display &display, const Request &request) const
{
    QList<xcb_atom_t> targets{display.atom("TARGETS"), display.atom("TIMESTAMP")};
    if (m_manner != Manner::NoText)
        targets.append(display.atom("UTF8_STRING"));
    if (m_manner == Manner::Silent)
        targets.append({display.atom("text/html"), display.atom("image/png")});
    if (m_manner == Manner::Secret || m_manner == Manner::SilentSecret)
        targets.append(display.atom("x-kde-passwordManagerHint"));
    SelectionThread::writeAtoms(display, request, targets);
    SelectionThread::notify(display, request, true);
}

void SelectionOwner::sendText(Display &display, const Request &request)
{
    if (m_manner == Manner::Silent)
        return;
    if (m_manner == Manner::Incremental || m_manner == Manner::StallsHalfway || m_manner == Manner::Drips) {
        m_requestor = request.requestor;
        m_property = request.property;
        m_sent = 0;
        const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(display.xcb(), m_requestor, XCB_CW_EVENT_MASK, &events);
        const auto size = static_cast<quint32>(m_text.size());
        SelectionThread::write(display, request, display.atom("INCR"), 32,
                               QByteArray(reinterpret_cast<const char *>(&size), sizeof size));
    } else {
        SelectionThread::write(display, request, request.target, 8, m_text);
    }
    SelectionThread::notify(display, request, true);
}

void SelectionOwner::sendNextPiece(Display &display)
{
    if (m_manner == Manner::StallsHalfway && m_sent > 0)
        return;
    if (m_manner == Manner::Drips) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        m_sent = 0;
    }
    const QByteArray piece = m_text.mid(m_sent, kPiece);
    m_sent += piece.size();
    xcb_change_property(display.xcb(), XCB_PROP_MODE_REPLACE, m_requestor, m_property,
                        display.atom("UTF8_STRING"), 8, static_cast<quint32>(piece.size()),
                        piece.constData());
    if (piece.isEmpty())
        m_property = XCB_ATOM_NONE;
}
