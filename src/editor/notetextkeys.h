// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

class QInputMethodEvent;
class QKeyEvent;

namespace vesk {

class EditItem;
class EditSteps;
class NoteText;
class NoteTextView;

/// The key map of a note's editor: what keys do there, and what an input method writes. Owned by the
/// editor's view.
class NoteTextKeys final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The editor's view has the one.")
    // Whether the host wants the key instead of what it does in a text.
    Q_PROPERTY(bool takesReturn MEMBER m_takesReturn NOTIFY takesChanged)
    Q_PROPERTY(bool takesCommandReturn MEMBER m_takesCommandReturn NOTIFY takesChanged)
    Q_PROPERTY(bool takesEmptyItemReturn MEMBER m_takesEmptyItemReturn NOTIFY takesChanged)
    Q_PROPERTY(bool takesEscape MEMBER m_takesEscape NOTIFY takesChanged)
    /// Control-Tab, with or without Shift; else it goes to the next control.
    Q_PROPERTY(bool takesTabbing MEMBER m_takesTabbing NOTIFY takesChanged)

public:
    /// Both have to outlive this.
    NoteTextKeys(NoteTextView &view, const EditItem &edit);

    /// Tells what the keys work on, before the first of them comes.
    void start(const NoteText &text, EditSteps &steps);

    // True if the event was for the rules, not for the item.
    bool handleShortcut(QKeyEvent &event) const;
    bool handleKey(QKeyEvent &event);
    bool handleInputMethod(const QInputMethodEvent &event);

Q_SIGNALS:
    void takesChanged();
    void returned();
    void commandReturned();
    void emptyItemReturned();
    void escaped();
    void tabbed(bool isForwards);

private:
    bool handleEditingKey(const QKeyEvent &event);
    bool handleReturn(const QKeyEvent &event);
    bool handlePage(const QKeyEvent &event);
    bool eraseLineBreak(const QKeyEvent &event);
    void leaveText(bool isForwards);
    bool typeSpace();
    void typeLineBreak();

    NoteTextView &m_view;
    const EditItem &m_edit;
    const NoteText *m_text = nullptr;
    EditSteps *m_steps = nullptr;
    bool m_takesReturn = false;
    bool m_takesCommandReturn = false;
    bool m_takesEmptyItemReturn = false;
    bool m_takesEscape = false;
    bool m_takesTabbing = false;
};

} // namespace vesk
