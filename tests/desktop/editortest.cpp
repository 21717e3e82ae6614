// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"

namespace vesk {

void EditorTest::init()
{
    QString problem;
    m_desktop = VirtualDesktop::start(problem);
    QVERIFY2(m_desktop, qPrintable(problem));
    QVERIFY(m_desktop->prepareUser());
    m_vesk = m_desktop->startVesk();
    QVERIFY(m_vesk);
    m_editor = TextEditor::open(*m_desktop, m_lines);
    VERIFY_ON(*m_desktop, m_editor);
}

void EditorTest::cleanup()
{
    if (m_vesk && QTest::currentTestFailed())
        qWarning().noquote() << "Vesk said:" << m_vesk->errorOutput();
    m_editor.reset();
    m_vesk.reset();
    m_desktop.reset();
}

void EditorTest::press(const Keys &keys)
{
    m_desktop->keyboard().tap(Keys{XK_Super_L, XK_Alt_L} + keys, kFinger);
    // Nor is a finger down again at once.
    QTest::qWait(int(kFinger.count()));
}

void EditorTest::tapShiftTwice()
{
    for (int tap = 0; tap < 2; ++tap)
        m_desktop->keyboard().tap({XK_Shift_L}, kFinger);
}

bool EditorTest::runToEnd(const QString &program, const QStringList &arguments)
{
    const std::unique_ptr<ChildProcess> process = m_desktop->run(program, arguments);
    return process && process->waitForExit(kBound) && process->exitCode() == 0;
}

bool EditorTest::waitNotice(const QString &message)
{
    return m_desktop->windows().waitViewable(message, kBound).has_value();
}

bool EditorTest::isEditorUntouched()
{
    return m_editor->text() == m_lines.join(u'\n') + u'\n';
}

} // namespace vesk
