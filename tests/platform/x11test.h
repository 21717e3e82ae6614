// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/desktoptest.h"
#include "platform/x11/x11connection.h"
#include "virtualdesktop/virtualdesktop.h"

namespace vesk {

/// A test of the platform itself on a desktop of its own, the same one for all functions.
class X11Test : public QObject
{
    Q_OBJECT

protected:
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
