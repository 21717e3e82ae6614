// SPDX-License-Identifier: MIT
#include "platform/x11/grabholders.h"

#include "platform/x11/x11connection.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <xcb/res.h>

#include <span>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// More names than this would not help the user.
constexpr qsizetype kMostHolders = 3;

/// The resource bases of the clients that have a passive grab.
QList<uint32_t> clientsWithGrabs(const X11Connection &connection)
{
    xcb_connection_t *xcb = connection.xcb();
    const XReply<xcb_res_query_clients_reply_t> clients(
        xcb_res_query_clients_reply(xcb, xcb_res_query_clients(xcb), nullptr));
    if (!clients)
        return {};
    const std::span all(xcb_res_query_clients_clients(clients.get()),
                        static_cast<size_t>(xcb_res_query_clients_clients_length(clients.get())));
    QList<xcb_res_query_client_resources_cookie_t> cookies;
    for (const xcb_res_client_t &client : all)
        cookies.append(xcb_res_query_client_resources(xcb, client.resource_base));
    const xcb_atom_t passiveGrab = connection.atom("PASSIVE GRAB");
    QList<uint32_t> holders;
    for (size_t i = 0; i < all.size(); ++i) {
        const auto cookie = cookies.at(static_cast<qsizetype>(i));
        const XReply<xcb_res_query_client_resources_reply_t> resources(
            xcb_res_query_client_resources_reply(xcb, cookie, nullptr));
        if (!resources)
            continue;
        const std::span types(
            xcb_res_query_client_resources_types(resources.get()),
            static_cast<size_t>(xcb_res_query_client_resources_types_length(resources.get())));
        for (const xcb_res_type_t &type : types) {
            if (type.resource_type == passiveGrab && type.count > 0)
                holders.append(all[i].resource_base);
        }
    }
    return holders;
}

/// Empty if there is no window manager, or it does not report its name.
QString windowManagerName(const X11Connection &connection, xcb_window_t window)
{
    return QString::fromUtf8(connection.property(window, connection.atom("_NET_WM_NAME")));
}

QString programName(qint64 process)
{
    QFile file(u"/proc/%1/comm"_s.arg(process));
    const QString name =
        file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()).trimmed() : QString();
    // The kernel truncates process names; the executable's name is complete, but for a script it is the
    // interpreter's.
    const QString program = QFileInfo(QFileInfo(u"/proc/%1/exe"_s.arg(process)).symLinkTarget()).fileName();
    return program.startsWith(name) ? program : name;
}

} // namespace

QStringList grabHolders(const X11Connection &connection)
{
    const std::optional<quint32> managerWindow =
        connection.property32(connection.root(), connection.atom("_NET_SUPPORTING_WM_CHECK"));
    const std::optional<qint64> manager =
        managerWindow ? connection.clientProcess(*managerWindow) : std::nullopt;
    QStringList names;
    const QList<uint32_t> clients = clientsWithGrabs(connection);
    for (const uint32_t client : clients) {
        const std::optional<qint64> process = connection.clientProcess(client);
        if (process == QCoreApplication::applicationPid())
            continue;
        // A client that cannot be identified, for example on another machine, may be the holder.
        if (!process)
            return {};
        QString name = process == manager ? windowManagerName(connection, *managerWindow) : QString();
        if (name.isEmpty())
            name = programName(*process);
        if (name.isEmpty())
            return {};
        if (!names.contains(name))
            names.append(name);
    }
    return names.size() > kMostHolders ? QStringList() : names;
}

} // namespace vesk
