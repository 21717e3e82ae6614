// SPDX-License-Identifier: MIT
#include "editor/textmouse.h"

#include "editor/boxgeometry.h"
#include "editor/edititem.h"
#include "editor/notetextview.h"
#include "editor/texttransfer.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

namespace vesk {

TextMouse::TextMouse(NoteTextView &view, const EditItem &edit, const NoteText &text, TextTransfer &transfer)
    : m_view(view)
    , m_edit(edit)
    , m_text(text)
    , m_transfer(transfer)
{
}

bool TextMouse::handle(const QMouseEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (event.type() == QEvent::MouseButtonDblClick)
            m_doubleClicked = event.timestamp();
        m_isTaken = press(event);
        return m_isTaken;
    case QEvent::MouseMove:
        if (m_isTaken)
            move(event.position());
        return m_isTaken;
    case QEvent::MouseButtonRelease:
        if (!m_isTaken)
            return false;
        m_isTaken = false;
        release(event);
        return true;
    default:
        return false;
    }
}

bool TextMouse::press(const QMouseEvent &event)
{
    m_pressed.reset();
    switch (event.button()) {
    case Qt::LeftButton:
        return pressLeft(event);
    case Qt::MiddleButton:
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        m_transfer.pasteSelected(m_edit.positionAt(event.position()));
        return true;
    case Qt::RightButton:
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        Q_EMIT m_view.contextMenuRequested(event.position());
        return true;
    default:
        return false;
    }
}

bool TextMouse::pressLeft(const QMouseEvent &event)
{
    const QPointF point = event.position();
    if (const std::optional<qsizetype> box = boxgeometry::findBox(m_text, point)) {
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        m_view.toggleBox(static_cast<int>(*box));
        return true;
    }
    // The second and the third click select a word and a line, even if something is selected.
    const auto interval = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const bool isThird = m_doubleClicked && event.timestamp() < *m_doubleClicked + interval;
    const Selection selection = m_edit.selection();
    const qsizetype position = m_edit.positionAt(point);
    const bool isInside = position >= selection.start() && position <= selection.end();
    if (selection.isEmpty() || !isInside || isThird || event.type() == QEvent::MouseButtonDblClick
        || event.modifiers().testFlag(Qt::ShiftModifier))
        return false;
    m_pressed = point;
    return true;
}

void TextMouse::move(const QPointF &point)
{
    const int distance = QGuiApplication::styleHints()->startDragDistance();
    if (!m_pressed || (m_view.dropPosition() < 0 && (point - *m_pressed).manhattanLength() < distance))
        return;
    m_view.setDropPosition(static_cast<int>(m_edit.positionAt(point)));
}

void TextMouse::release(const QMouseEvent &event)
{
    if (!m_pressed)
        return;
    m_pressed.reset();
    const int position = m_view.dropPosition();
    if (position < 0) {
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        m_edit.select(Selection::at(m_edit.positionAt(event.position())));
        return;
    }
    m_view.setDropPosition(-1);
    m_transfer.moveSelection(position, event.modifiers().testFlag(Qt::ControlModifier));
}

} // namespace vesk
