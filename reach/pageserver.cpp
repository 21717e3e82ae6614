// SPDX-License-Identifier: MIT
#include "reach/pageserver.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vesk {

std::unique_ptr<PageServer> PageServer::start(Pages pages)
{
    const int listening = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof place;
    auto *address = reinterpret_cast<sockaddr *>(&place);
    constexpr int kWaiting = 16;
    if (bind(listening, address, size) != 0 || listen(listening, kWaiting) != 0
        || getsockname(listening, address, &size) != 0) {
        close(listening);
        return nullptr;
    }
    std::unique_ptr<PageServer> server(new PageServer(listening, ntohs(place.sin_port), std::move(pages)));
    server->m_thread = std::thread([server = server.get()] { server->serve(); });
    return server;
}

PageServer::PageServer(int socket, int port, Pages pages)
    : m_socket(socket)
    , m_port(port)
    , m_pages(std::move(pages))
{
}

PageServer::~PageServer()
{
    // Wakes the thread, which is waiting for the next client.
    shutdown(m_socket, SHUT_RDWR);
    m_thread.join();
    close(m_socket);
}

QString PageServer::address(const QString &path) const
{
    return u"http://127.0.0.1:%1%2"_s.arg(m_port).arg(path);
}

void PageServer::serve()
{
    for (;;) {
        const int connection = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0)
            return;
        answer(connection);
        close(connection);
    }
}

void PageServer::answer(int connection) const
{
    // Browsers open spare connections on which they request nothing.
    constexpr int kPatience = 500; // ms
    pollfd descriptor = {connection, POLLIN, 0};
    char request[4096];
    if (poll(&descriptor, 1, kPatience) != 1)
        return;
    const ssize_t length = recv(connection, request, sizeof request, 0);
    if (length <= 0)
        return;
    const QByteArray path = QByteArray(request, length).split(' ').value(1);
    const QByteArray page = m_pages.value(path);
    const QByteArray status = page.isEmpty() ? "404 Not Found" : "200 OK";
    const QByteArray reply = "HTTP/1.1 " + status
                             + "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: "
                             + QByteArray::number(page.size()) + "\r\nConnection: close\r\n\r\n" + page;
    send(connection, reply.constData(), size_t(reply.size()), MSG_NOSIGNAL);
}

} // namespace vesk
