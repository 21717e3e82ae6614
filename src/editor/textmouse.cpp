// SPDX-License-Identifier: MIT
#include "editor/textmouse.h"

#include "editor/boxgeometry.h"
#include "editor/edititem.h"
#include "editor/notetextview.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

namespace vesk {

TextMouse::TextMouse(NoteTextView &view, const EditItem &edit, const NoteText &text)
    : m_view(view)
    , m_edit(edit)
    , m_text(text)
{
}

bool TextMouse::handle(const QMouseEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
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
        // A second click on the selection selects a word or a line, as anywhere.
        return pressLeft(event.position()) || (m_pressed && event.type() == QEvent::MouseButtonPress);
    case Qt::MiddleButton:
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        m_view.pasteSelected(m_edit.positionAt(event.position()));
        return true;
    case Qt::RightButton:
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        Q_EMIT m_view.contextMenuRequested(event.position());
        return true;
    default:
        return false;
    }
}

bool TextMouse::pressLeft(const QPointF &point)
{
    if (const std::optional<qsizetype> box = boxgeometry::findBox(m_text, point)) {
        m_edit.item()->forceActiveFocus(Qt::MouseFocusReason);
        m_view.toggleBox(static_cast<int>(*box));
        return true;
    }
    const Selection selection = m_edit.selection();
    const qsizetype position = m_edit.positionAt(point);
    if (!selection.isEmpty() && position >= selection.start() && position <= selection.end())
        m_pressed = point;
    return false;
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
    m_view.moveSelection(position, event.modifiers().testFlag(Qt::ControlModifier));
}

} // namespace vesk
