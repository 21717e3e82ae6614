// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"

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

} // namespace vesk
