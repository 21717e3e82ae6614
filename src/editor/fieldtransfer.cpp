// SPDX-License-Identifier: MIT
#include "editor/fieldtransfer.h"

#include "editor/fieldediting.h"
#include "editor/heldinput.h"
#include "editor/lentpasteboards.h"
#include "editor/trackedspan.h"
#include "platform/pasteboard.h"

#include <QPointer>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

QString asOneLine(QString text)
{
    static const QRegularExpression kAtTheEnds(
        u"^[\\r\\n\\x{2028}\\x{2029}]+|[\\r\\n\\x{2028}\\x{2029}]+$"_s);
    static const QRegularExpression kWithin(u"\\s*[\\r\\n\\x{2028}\\x{2029}]+\\s*"_s);
    return text.remove(kAtTheEnds).replace(kWithin, u" "_s);
}

/// Converts the line breaks of other systems, as the item itself would.
QString withOwnLineBreaks(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

FieldTransfer *FieldTransfer::qmlAttachedProperties(QObject *item)
{
    auto *textItem = qobject_cast<QQuickItem *>(item);
    return textItem ? &of(*textItem) : nullptr;
}

FieldTransfer &FieldTransfer::of(QQuickItem &item)
{
    // Not with qmlAttachedPropertiesObject, which only knows attached types of imported modules.
    if (auto *known = item.findChild<FieldTransfer *>(QString(), Qt::FindDirectChildrenOnly))
        return *known;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the item owns it.
    return *new FieldTransfer(item);
}

FieldTransfer::FieldTransfer(QQuickItem &item)
    : QObject(&item)
    , m_edit(&item)
{
    connect(&item, SIGNAL(selectedTextChanged()), this, SLOT(onSelectionChanged()));
}

LentPasteboards *FieldTransfer::lent() const
{
    const QQmlEngine *engine = qmlEngine(&item());
    return engine ? LentPasteboards::findFor(*engine) : nullptr;
}

bool FieldTransfer::isReadOnly() const
{
    return item().property("readOnly").toBool();
}

QString FieldTransfer::selectedText() const
{
    QTextDocument *document = m_edit.document();
    if (!document)
        return item().property("selectedText").toString();
    // The item itself would replace no-break spaces with ordinary ones.
    QTextCursor cursor(document);
    cursor.setPosition(static_cast<int>(m_edit.selection().start()));
    cursor.setPosition(static_cast<int>(m_edit.selection().end()), QTextCursor::KeepAnchor);
    return cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

void FieldTransfer::copy()
{
    m_edit.endComposing();
    LentPasteboards *pasteboards = lent();
    if (pasteboards && !m_edit.selection().isEmpty())
        pasteboards->pasteboard().setString(selectedText());
}

void FieldTransfer::cut()
{
    copy();
    if (lent())
        removeSelection();
}

void FieldTransfer::removeSelection()
{
    m_edit.endComposing();
    const Selection selection = m_edit.selection();
    if (!isReadOnly() && !selection.isEmpty())
        steps().edit(selection.start(), selection.length(), {}, Selection::at(selection.start()));
}

void FieldTransfer::replaceSelection(const QString &text)
{
    m_edit.endComposing();
    steps().replaceSelection(text);
}

void FieldTransfer::selectAll()
{
    QMetaObject::invokeMethod(&item(), "selectAll");
}

bool FieldTransfer::hasText() const
{
    return item().property("length").toInt() > 0;
}

void FieldTransfer::paste()
{
    LentPasteboards *pasteboards = lent();
    if (!pasteboards || isReadOnly())
        return;
    m_edit.endComposing();
    insertFrom(pasteboards->pasteboard(), m_edit.selection());
}

void FieldTransfer::pasteSelected(const QPointF &point)
{
    LentPasteboards *pasteboards = lent();
    if (!pasteboards || !pasteboards->primary() || isReadOnly())
        return;
    m_edit.endComposing();
    item().forceActiveFocus(Qt::MouseFocusReason);
    // A single-line item does not offer this in C++.
    QQmlExpression position(qmlContext(&item()), &item(),
                            u"positionAt(%1, %2)"_s.arg(point.x()).arg(point.y()));
    const int clicked = position.evaluate().toInt();
    m_edit.select(Selection::at(clicked));
    insertFrom(*pasteboards->primary(), Selection::at(clicked));
}

void FieldTransfer::publishSelection()
{
    LentPasteboards *pasteboards = lent();
    // Only publish a new selection: another program may have selected something since.
    if (!m_isSelectionNew || !pasteboards || !pasteboards->primary() || m_edit.selection().isEmpty())
        return;
    m_isSelectionNew = false;
    pasteboards->primary()->setString(selectedText());
}

EditSteps &FieldTransfer::steps() const
{
    return FieldEditing::of(item()).steps();
}

QCoro::Task<> FieldTransfer::insertFrom(Pasteboard &pasteboard, Selection place)
{
    const QPointer<FieldTransfer> self(this);
    // Sends the held input on when it is destroyed, after the text was inserted.
    HeldInput held(item());
    // A child of the item, so that it is destroyed with it.
    const QPointer<TrackedSpan> span = new TrackedSpan(item(), place.start(), place.end());
    span->setParent(this);
    const std::optional<QString> text = co_await pasteboard.string(Pasteboard::Patience::Long);
    if (self.isNull())
        co_return;
    if (!text)
        held.dropPastes();
    const Selection now{.anchor = span->start(), .caret = span->end()};
    delete span;
    if (!text || text->isEmpty() || isReadOnly())
        co_return;
    const QString pasted = m_edit.document() ? withOwnLineBreaks(*text) : asOneLine(*text);
    const qsizetype length = now.length();
    Selection after = m_edit.selection();
    // If the user has moved the caret meanwhile, it stays there. The held input was typed here before the
    // focus moved on, and follows the text.
    if (item().hasActiveFocus())
        after = {.anchor = moved(after.anchor, now.start(), length, pasted.size()),
                 .caret = moved(after.caret, now.start(), length, pasted.size())};
    else
        after = Selection::at(now.start() + pasted.size());
    steps().edit(now.start(), length, pasted, after);
}

} // namespace vesk
