// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/desktoptest.h"
#include "platform/x11/x11connection.h"
#include "virtualdesktop/virtualdesktop.h"

#include <QCoroTask>
#include <QCoroTimer>

namespace vesk {

/// A test of the platform itself on a separate desktop, shared by all functions.
class X11Test : public QObject
{
    Q_OBJECT

protected:
    /// Returns once Vesk has received everything that the server has sent.
    void settle()
    {
        static_cast<void>(m_desktop->display().atom("VESK_TEST"));
        // An answer arrives after all preceding events; they are handled when the loop is about to wait.
        static_cast<void>(m_connection->property(m_connection->root(), XCB_ATOM_WM_NAME));
        QCoro::waitFor(QCoro::sleepFor(std::chrono::milliseconds{20}));
    }

    std::unique_ptr<VirtualDesktop> m_desktop;
    /// Vesk's connection, where one does.
    std::unique_ptr<X11Connection> m_connection;

protected Q_SLOTS:
    void initTestCase()
    {
        QString problem;
        m_desktop = VirtualDesktop::start(problem);
        QVERIFY2(m_desktop, qPrintable(problem));
        qputenv("DISPLAY", m_desktop->displayName().toLatin1());
        m_connection = X11Connection::open().connection;
        QVERIFY(m_connection);
    }
    void cleanupTestCase()
    {
        m_connection.reset();
        m_desktop.reset();
    }
};

} // namespace vesk
