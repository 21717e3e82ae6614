// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/desktoptest.h"
#include "virtualdesktop/virtualdesktop.h"

namespace vesk {

/// A test on a separate desktop, new for each function, whose user has allowed Vesk to read.
class VeskTest : public QObject
{
    Q_OBJECT

protected:
    using Keys = QList<xcb_keysym_t>;

    /// Starts only the desktop.
    void startDesktop(const VirtualDesktop::Lacks &lacks = {});
    /// Returns false if it did not start.
    [[nodiscard]] bool startVesk();

    /// Presses keys together with Super and Alt, as a hand does.
    void press(const Keys &keys);
    void capture() { press({XK_n}); }
    void togglePanel() { press({XK_t}); }
    void tapShiftTwice();

    /// Runs a program on the desktop until it exits; returns whether it succeeded.
    [[nodiscard]] bool runToEnd(const QString &program, const QStringList &arguments);
    [[nodiscard]] bool waitNotice(const QString &message);
    /// Waits until the store contains exactly these notes, oldest first; returns whether it does.
    [[nodiscard]] bool waitNotes(const QStringList &texts);

    std::unique_ptr<VirtualDesktop> m_desktop;
    std::unique_ptr<ChildProcess> m_vesk;

protected Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace vesk
