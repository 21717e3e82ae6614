// SPDX-License-Identifier: MIT
#include "editor/edititem.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QQuickItem>
#include <QQuickTextDocument>

namespace vesk {

QTextDocument *EditItem::document() const
{
    const auto *document = m_item->property("textDocument").value<QQuickTextDocument *>();
    return document ? document->textDocument() : nullptr;
}

qsizetype EditItem::caret() const
{
    return m_item->property("cursorPosition").toInt();
}

Selection EditItem::selection() const
{
    const int caret = m_item->property("cursorPosition").toInt();
    const int start = m_item->property("selectionStart").toInt();
    const int end = m_item->property("selectionEnd").toInt();
    return {.anchor = caret == start ? end : start, .caret = caret};
}

void EditItem::select(const Selection &selection) const
{
    // Do not check the item's selection first: it may be older than the last change.
    QMetaObject::invokeMethod(m_item, "select", Q_ARG(int, static_cast<int>(selection.anchor)),
                              Q_ARG(int, static_cast<int>(selection.caret)));
}

qsizetype EditItem::positionAt(const QPointF &point) const
{
    int position = 0;
    QMetaObject::invokeMethod(m_item, "positionAt", Q_RETURN_ARG(int, position), Q_ARG(qreal, point.x()),
                              Q_ARG(qreal, point.y()));
    return position;
}

QRectF EditItem::rectangleOf(qsizetype position) const
{
    QRectF rectangle;
    QMetaObject::invokeMethod(m_item, "positionToRectangle", Q_RETURN_ARG(QRectF, rectangle),
                              Q_ARG(int, static_cast<int>(position)));
    return rectangle;
}

bool EditItem::isComposing() const
{
    return m_item->property("inputMethodComposing").toBool();
}

void EditItem::endComposing() const
{
    if (!isComposing())
        return;
    // The toolkit asks for whatever item has the focus, and has already asked for an item that has lost it.
    if (m_item->hasActiveFocus())
        QGuiApplication::inputMethod()->commit();
    if (!isComposing())
        return;
    // The input method does not know about this composition, or is gone.
    QInputMethodEvent commit;
    commit.setCommitString(m_item->property("preeditText").toString());
    QCoreApplication::sendEvent(m_item, &commit);
}

} // namespace vesk
