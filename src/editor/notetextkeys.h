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

/// The key map of a note's editor: what keys do there. Keys that mean something to the host act once, however
/// long they are held. Owned by the editor's view.
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
    /// The text gets the keyboard. A Return that is still held from before does nothing in it.
    void enter() { m_repeatsLineBreak = false; }

    /// A line break as the Return key types it; in an empty item it may be for the host.
    void typeLineBreak();
    /// Turns what stands before the caret into a marker. Returns false, and changes nothing, where a space is
    /// just a space.
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
    /// Whether the Return key that is held has typed a line break, which its repeats do too.
    bool m_repeatsLineBreak = false;
};

} // namespace vesk
