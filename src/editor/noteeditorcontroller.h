// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>

namespace vesk {

class NoteTextView;

/// A host's handle on the live text of an editor, for its menus. Owned by the host, which passes it to the
/// editor; the editor points it at its text. Without a live editor every operation does nothing.
class NoteEditorController : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit NoteEditorController(QObject *parent = nullptr);

    /// Null if there is no live editor.
    [[nodiscard]] NoteTextView *textView() const;
    void setTextView(NoteTextView *textView);

    /// Adds this marker (including its space) to the line at the start of the selection, or removes it.
    void toggleLinePrefix(const QString &marker);
    void moveCaretToEnd();
    /// Gives the text the focus.
    void forceFocus();
    /// Commits what an input method is composing. Call this before the text is saved or its editor closes.
    void finishComposing();
    /// Gives the text the focus now if it is waiting for it, as it does right after it is shown; returns
    /// whether it did.
    bool focusIfAwaited();

private:
    QPointer<NoteTextView> m_textView;
};

} // namespace vesk
