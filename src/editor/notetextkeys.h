// SPDX-License-Identifier: MIT
#pragma once

#include "editor/typedmarkup.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

class QKeyEvent;

namespace vesk {

class EditItem;
class EditSteps;
class NoteText;
class NoteTextView;

/// The key map of a note's editor. Keys that mean something to the host act once, however long they are held.
/// Owned by the editor's view.
class NoteTextKeys final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The editor's view has the one.")
    // Whether the host wants this key instead of its effect in a text.
    Q_PROPERTY(bool takesReturn MEMBER m_takesReturn NOTIFY takesChanged)
    Q_PROPERTY(bool takesCommandReturn MEMBER m_takesCommandReturn NOTIFY takesChanged)
    Q_PROPERTY(bool takesEmptyItemReturn MEMBER m_takesEmptyItemReturn NOTIFY takesChanged)
    Q_PROPERTY(bool takesEscape MEMBER m_takesEscape NOTIFY takesChanged)
    /// Control-Tab, with or without Shift; otherwise it moves to the next control.
    Q_PROPERTY(bool takesTabbing MEMBER m_takesTabbing NOTIFY takesChanged)

public:
    /// Both must outlive this object.
    NoteTextKeys(NoteTextView &view, const EditItem &edit);

    /// Sets what the keys work on; must be called before the first key arrives.
    void start(const NoteText &text, EditSteps &steps);

    // Returns true if the event was handled by the rules, false if it is for the item.
    bool handleShortcut(QKeyEvent &event) const;
    bool handleKey(QKeyEvent &event);
    /// The text has received the focus. A Return that is still held from before does nothing in it.
    void enter() { m_repeatsLineBreak = false; }

    /// Types a line break as the Return key does; in an empty item the key may be for the host.
    void typeLineBreak();
    /// Turns the text before the caret into a marker. Returns false, with nothing changed, if a space is just
    /// a space there.
    bool typeSpace() { return m_markup->typeSpace(); }

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
    void leaveText(bool isForwards);

    NoteTextView &m_view;
    const EditItem &m_edit;
    const NoteText *m_text = nullptr;
    EditSteps *m_steps = nullptr;
    std::optional<TypedMarkup> m_markup;
    bool m_takesReturn = false;
    bool m_takesCommandReturn = false;
    bool m_takesEmptyItemReturn = false;
    bool m_takesEscape = false;
    bool m_takesTabbing = false;
    /// Whether the held Return key has typed a line break, as its repeats will.
    bool m_repeatsLineBreak = false;
};

} // namespace vesk
