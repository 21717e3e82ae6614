// SPDX-License-Identifier: MIT
#include "editor/fieldtext.h"

#include <QQuickItem>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>

#include <utility>

namespace vesk {

FieldText::FieldText(const EditItem &edit)
    : m_edit(edit)
    , m_text(shown())
{
    // If the item has the second signal, it is emitted first, and not when the program sets the text.
    connect(edit.item(), SIGNAL(textChanged()), this, SLOT(onTextChanged()));
    if (!edit.document())
        connect(edit.item(), SIGNAL(textEdited()), this, SLOT(onEdited()));
}

QString FieldText::shown() const
{
    // The multi-line item's text property has ordinary spaces instead of no-break spaces.
    if (const QTextDocument *document = m_edit.document())
        return document->toRawText().replace(QChar::ParagraphSeparator, u'\n');
    return m_edit.item()->property("text").toString();
}

void FieldText::replace(qsizetype position, qsizetype length, const QString &text)
{
    const int start = static_cast<int>(position);
    const int end = static_cast<int>(position + length);
    {
        const QScopedValueRollback replacing(m_isReplacing, true);
        if (QTextDocument *document = m_edit.document()) {
            QTextCursor cursor(document);
            cursor.setPosition(start);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            cursor.insertText(text);
        } else {
            QMetaObject::invokeMethod(m_edit.item(), "remove", Q_ARG(int, start), Q_ARG(int, end));
            QMetaObject::invokeMethod(m_edit.item(), "insert", Q_ARG(int, start), Q_ARG(QString, text));
        }
    }
    Q_EMIT changed(follow());
}

void FieldText::onEdited()
{
    if (m_isReplacing)
        return;
    const Splice change = follow();
    if (!change.isEmpty())
        Q_EMIT changed(change);
}

void FieldText::onTextChanged()
{
    if (m_isReplacing)
        return;
    // A multi-line item does not report who changed its text, but discards its own undo steps when the text
    // is set.
    if (m_edit.document() && m_edit.item()->property("canUndo").toBool())
        onEdited();
    else if (!follow().isEmpty())
        Q_EMIT loaded();
}

Splice FieldText::follow()
{
    const QString before = std::exchange(m_text, shown());
    return difference(before, m_text);
}

} // namespace vesk
