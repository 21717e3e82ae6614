// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"

namespace vesk {

void VeskTest::startDesktop(const VirtualDesktop::Lacks &lacks)
{
    const std::optional<WindowManager> manager = WindowManager::chosen();
    if (manager && !manager->isInstalled())
        QSKIP(qPrintable(QStringLiteral("The window manager %1 is not installed.").arg(manager->name)));
    QString problem;
    m_desktop = VirtualDesktop::start(problem, lacks);
    QVERIFY2(m_desktop, qPrintable(problem));
}

bool VeskTest::startVesk()
{
    m_vesk = m_desktop->startVesk();
    return m_vesk != nullptr;
}

void VeskTest::init()
{
    startDesktop();
    QVERIFY(m_desktop && m_desktop->prepareUser());
}

void VeskTest::cleanup()
{
    if (m_vesk && QTest::currentTestFailed())
        qWarning().noquote() << "Vesk said:" << m_vesk->errorOutput();
    m_vesk.reset();
    m_desktop.reset();
}

void VeskTest::press(const Keys &keys)
{
    m_desktop->keyboard().tap(Keys{XK_Super_L, XK_Alt_L} + keys, kFinger);
    // A finger does not press again at once, either.
    QTest::qWait(int(kFinger.count()));
}

void VeskTest::tapShiftTwice()
{
    for (int tap = 0; tap < 2; ++tap)
        m_desktop->keyboard().tap({XK_Shift_L}, kFinger);
}

bool VeskTest::runToEnd(const QString &program, const QStringList &arguments)
{
    const std::unique_ptr<ChildProcess> process = m_desktop->run(program, arguments);
    return process && process->waitForExit(kBound) && process->exitCode() == 0;
}

bool VeskTest::waitNotice(const QString &message)
{
    return m_desktop->windows().waitViewable(message, kBound).has_value();
}

bool VeskTest::waitNotes(const QStringList &texts)
{
    return m_desktop->display().waitUntil(kBound, [&] { return m_desktop->notes().texts() == texts; });
}

} // namespace vesk
