// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QtGlobal>

#include <optional>

class QEvent;
class QMouseEvent;

namespace vesk {

class EditItem;
class NoteText;
class NoteTextView;
class TextTransfer;

/// What the mouse does in an editor besides placing the caret and selecting: it toggles checkboxes, drags the
/// selected text, pastes what is selected elsewhere, and opens the menu.
class TextMouse final
{
public:
    /// All must outlive this object.
    TextMouse(NoteTextView &view, const EditItem &edit, const NoteText &text, TextTransfer &transfer);

    /// Returns true if the event was handled, false if it is for the item.
    bool handle(const QMouseEvent &event);

private:
    bool press(const QMouseEvent &event);
    bool pressLeft(const QMouseEvent &event);
    void move(const QPointF &point);
    void release(const QMouseEvent &event);

    NoteTextView &m_view;
    const EditItem &m_edit;
    const NoteText &m_text;
    TextTransfer &m_transfer;
    /// The button was pressed on something of ours; events until its release are ours too.
    bool m_isTaken = false;
    /// Where the selection was pressed, which may start a drag.
    std::optional<QPointF> m_pressed;
    /// Time of the last double click, in milliseconds.
    std::optional<quint64> m_doubleClicked;
};

} // namespace vesk
