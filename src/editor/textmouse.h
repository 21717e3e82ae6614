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

/// What the mouse does in an editor beyond placing the caret and selecting: it ticks boxes, drags the
/// selected text, pastes what is selected elsewhere, and asks for the menu.
class TextMouse final
{
public:
    /// All of them have to outlive this.
    TextMouse(NoteTextView &view, const EditItem &edit, const NoteText &text, TextTransfer &transfer);

    /// True if the event was taken, false if it is for the item.
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
    /// The button went down on something of ours; what comes until it is up again is ours too.
    bool m_isTaken = false;
    /// Where the selection was pressed that may be dragged.
    std::optional<QPointF> m_pressed;
    /// Time of the last double click, in milliseconds.
    std::optional<quint64> m_doubleClicked;
};

} // namespace vesk
