// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <memory>
#include <thread>

namespace vesk {

/// A web server for the test's pages, on the loopback interface and in a thread.
class PageServer final
{
public:
    /// Pages by path ("/page.html").
    using Pages = QMap<QByteArray, QByteArray>;

    /// Null if no port was available.
    [[nodiscard]] static std::unique_ptr<PageServer> start(Pages pages);
    ~PageServer();
    Q_DISABLE_COPY_MOVE(PageServer)

    [[nodiscard]] QString address(const QString &path) const;

private:
    PageServer(int socket, int port, Pages pages);

    void serve();
    void answer(int connection) const;

    int m_socket;
    int m_port;
    const Pages m_pages;
    std::thread m_thread;
};

} // namespace vesk
