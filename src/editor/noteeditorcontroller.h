// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>

namespace vesk {

class NoteTextView;

/// A host's handle on the live text of an editor, for its menus. The host owns it, and the editor that
/// it is given to points it at its own text. Without a living editor every operation does nothing.
class NoteEditorController : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit NoteEditorController(QObject *parent = nullptr);

    /// Null when no editor is alive.
    [[nodiscard]] NoteTextView *textView() const;
    void setTextView(NoteTextView *textView);

    /// Gives the line at the start of the selection this marker (with its space), or takes it away.
    void toggleLinePrefix(const QString &marker);
    void moveCaretToEnd();
    /// Gives the text the keyboard.
    void forceFocus();
    /// Writes what an input method is composing into the text. To be called before the text is saved or its
    /// editor goes.
    void finishComposing();
    /// Gives the text the keyboard now if it waits for it, as it does when it has just come up; whether it
    /// did.
    bool focusIfAwaited();

private:
    QPointer<NoteTextView> m_textView;
};

} // namespace vesk
