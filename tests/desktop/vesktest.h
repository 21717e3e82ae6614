// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/desktoptest.h"
#include "virtualdesktop/virtualdesktop.h"

namespace vesk {

/// A test on a desktop of its own, whose user allows Vesk to read; each function has a new one.
class VeskTest : public QObject
{
    Q_OBJECT

protected:
    using Keys = QList<xcb_keysym_t>;

    /// Makes the desktop alone.
    void startDesktop(const VirtualDesktop::Lacks &lacks = {});
    /// False if it did not come up.
    [[nodiscard]] bool startVesk();

    /// Presses keys together with Super and Alt, as a hand does.
    void press(const Keys &keys);
    void capture() { press({XK_n}); }
    void togglePanel() { press({XK_t}); }
    void tapShiftTwice();

    /// Runs a program on the desktop to its end; whether it did so with success.
    [[nodiscard]] bool runToEnd(const QString &program, const QStringList &arguments);
    [[nodiscard]] bool waitNotice(const QString &message);
    /// Whether the store comes to hold these notes, the oldest first.
    [[nodiscard]] bool waitNotes(const QStringList &texts);

    std::unique_ptr<VirtualDesktop> m_desktop;
    std::unique_ptr<ChildProcess> m_vesk;

protected Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace vesk
