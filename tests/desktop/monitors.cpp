// SPDX-License-Identifier: MIT
#include "desktop/monitors.h"

#include <array>
#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

namespace vesk {

namespace {

/// RRSetMonitor in its wire format: xcb's own function computes the length wrongly.
struct MonitorRequest
{
    quint8 majorOpcode;
    quint8 minorOpcode;
    quint16 length;
    xcb_window_t root;
    xcb_randr_monitor_info_t info;
    quint32 output;
};

void send(xcb_connection_t *xcb, MonitorRequest &request, size_t size)
{
    xcb_protocol_request_t protocol = {};
    protocol.count = 1;
    protocol.ext = &xcb_randr_id;
    protocol.opcode = XCB_RANDR_SET_MONITOR;
    protocol.isvoid = 1;
    // xcb uses the two places before the first part for itself.
    std::array<iovec, 3> parts = {};
    parts[2] = {&request, size};
    xcb_send_request(xcb, 0, &parts[2], &protocol);
}

} // namespace

Monitors::Monitors(DisplayConnection &display)
    : m_display(display)
{
    xcb_connection_t *xcb = display.xcb();
    // The server takes no request before it has heard which version is spoken.
    const Reply<xcb_randr_query_version_reply_t> version{
        xcb_randr_query_version_reply(xcb, xcb_randr_query_version(xcb, 1, 5), nullptr)};
    const Reply<xcb_randr_get_screen_resources_current_reply_t> resources{
        xcb_randr_get_screen_resources_current_reply(
            xcb, xcb_randr_get_screen_resources_current(xcb, display.root()), nullptr)};
    if (resources && xcb_randr_get_screen_resources_current_outputs_length(resources.get()) > 0)
        m_output = *xcb_randr_get_screen_resources_current_outputs(resources.get());
}

void Monitors::set(const QList<QRect> &monitors)
{
    xcb_connection_t *xcb = m_display.xcb();
    for (qsizetype i = monitors.size(); i < m_count; ++i)
        xcb_randr_delete_monitor(xcb, m_display.root(), nameOf(i));
    m_count = monitors.size();
    for (qsizetype i = 0; i < m_count; ++i) {
        const QRect &area = monitors.at(i);
        // Only the first one stands for the server's own output.
        const quint16 outputs = i == 0 && m_output != XCB_NONE ? 1 : 0;
        MonitorRequest request = {};
        request.root = m_display.root();
        request.info.name = nameOf(i);
        request.info.primary = i == 0;
        request.info.nOutput = outputs;
        request.info.x = qint16(area.x());
        request.info.y = qint16(area.y());
        request.info.width = quint16(area.width());
        request.info.height = quint16(area.height());
        request.info.width_in_millimeters = quint32(area.width()) / 4;
        request.info.height_in_millimeters = quint32(area.height()) / 4;
        request.output = m_output;
        send(xcb, request, sizeof request - (outputs > 0 ? 0 : sizeof request.output));
    }
    xcb_flush(xcb);
}

xcb_atom_t Monitors::nameOf(qsizetype index) const
{
    return m_display.atom(("VESK-" + QByteArray::number(index)).constData());
}

} // namespace vesk
