// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"

#include "desktop/plainwindow.h"
#include "virtualdesktop/files.h"

using namespace Qt::StringLiterals;

namespace vesk {

void EditorTest::init()
{
    VeskTest::init();
    QVERIFY(m_desktop && startVesk());
    m_editor = TextEditor::open(*m_desktop, m_lines);
    VERIFY_ON(*m_desktop, m_editor);
}

void EditorTest::cleanup()
{
    m_editor.reset();
    VeskTest::cleanup();
}

bool EditorTest::isEditorUntouched()
{
    return m_editor->text() == m_lines.join(u'\n') + u'\n';
}

bool EditorTest::letFocusFollowThePointer()
{
    QString config = QString::fromUtf8(contentsOf(u"/etc/xdg/openbox/rc.xml"_s));
    config.replace(u"<followMouse>no"_s, u"<followMouse>yes"_s);
    config.replace(u"<focusDelay>200"_s, u"<focusDelay>0"_s);
    if (config.isEmpty() || m_desktop->writeFile(u"config/openbox/rc.xml"_s, config).isEmpty())
        return false;
    const std::unique_ptr<ChildProcess> teller = m_desktop->run(u"openbox"_s, {u"--reconfigure"_s});
    if (!teller || !teller->waitForExit(kBound))
        return false;
    // Once it has noticed, moving the pointer is enough.
    PlainWindow other(m_desktop->display(), u"Other"_s, QRect(5, 5, 100, 100));
    other.show();
    const auto follows = [this](const Window &window, QPoint place) {
        m_desktop->pointer().moveTo(place);
        return m_desktop->windows().isActive(window);
    };
    const QPoint inEditor = m_editor->window().geometry.bottomLeft() + QPoint(40, -40);
    return m_desktop->display().waitUntil(kBound, [&] {
        return follows(other.window(), other.window().geometry.center());
    }) && m_desktop->display().waitUntil(kBound, [&] { return follows(m_editor->window(), inEditor); });
}

} // namespace vesk
