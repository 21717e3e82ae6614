// SPDX-License-Identifier: MIT
#include "editor/noteeditorcontroller.h"

#include "editor/notetextview.h"

// Made by the build. Naming it keeps the module's registration when the library is linked.
extern void qml_register_types_Vesk_Editor(); // NOLINT(readability-identifier-naming): not our name

namespace vesk {

NoteEditorController::NoteEditorController(QObject *parent)
    : QObject(parent)
{
    [[maybe_unused]] static const volatile auto registration = &qml_register_types_Vesk_Editor;
}

NoteTextView *NoteEditorController::textView() const
{
    return m_textView;
}

void NoteEditorController::setTextView(NoteTextView *textView)
{
    m_textView = textView;
}

void NoteEditorController::toggleLinePrefix(const QString &marker)
{
    if (m_textView)
        m_textView->toggleLinePrefix(marker);
}

void NoteEditorController::moveCaretToEnd()
{
    if (m_textView)
        m_textView->moveCaretToEnd();
}

void NoteEditorController::forceFocus()
{
    if (m_textView)
        m_textView->forceFocus();
}

void NoteEditorController::finishComposing()
{
    if (m_textView)
        m_textView->finishComposing();
}

bool NoteEditorController::focusIfAwaited()
{
    return m_textView && m_textView->focusIfAwaited();
}

} // namespace vesk
