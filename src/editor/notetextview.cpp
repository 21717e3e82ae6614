// SPDX-License-Identifier: MIT
#include "editor/notetextview.h"

#include "editor/editrules.h"
#include "editor/fieldguard.h"
#include "editor/lentpasteboards.h"
#include "editor/notetext.h"
#include "editor/textcomposition.h"
#include "editor/textmouse.h"
#include "editor/texttransfer.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QStyleHints>
#include <QTextBlock>
#include <QTextDocument>

namespace vesk {

NoteTextView::NoteTextView(QQuickItem *parent)
    : QQuickItem(parent)
{
    connect(this, &NoteTextView::visiblePartChanged, this, &NoteTextView::polish);
    connect(&m_focusTask, &FocusTask::ended, this, [this] {
        // An editor that has been closed meanwhile leaves the focus where it is.
        if (!window() || !isEnabled())
            return;
        forceFocus();
        moveCaretToEnd();
    });
}

NoteTextView::~NoteTextView() = default;

void NoteTextView::setTarget(QQuickItem *target)
{
    Q_ASSERT(!m_edit.item());
    m_edit = EditItem(target);
    Q_EMIT targetChanged();
}

void NoteTextView::componentComplete()
{
    QQuickItem::componentComplete();
    QQuickItem *target = m_edit.item();
    QQmlEngine *engine = qmlEngine(this);
    // Redraw only the visible part with each change; by default the item does that only for long texts that
    // are set at once.
    target->setFlag(QQuickItem::ItemObservesViewport);
    QTextDocument *document = m_edit.document();
    m_text = std::make_unique<NoteText>(*document, TextFormats::paragraph(QGuiApplication::layoutDirection()),
                                        nullptr);
    m_look.start(*m_text, *engine->singletonInstance<Theme *>(qmlTypeId("Vesk.Components", 1, 0, "Theme")));
    m_steps = std::make_unique<EditSteps>(m_edit, *m_text);
    m_keys.start(*m_text, *m_steps);
    m_transfer = std::make_unique<TextTransfer>(*m_steps, m_edit, *m_text, LentPasteboards::findFor(*engine));
    m_mouse = std::make_unique<TextMouse>(*this, m_edit, *m_text, *m_transfer);
    m_composition = std::make_unique<TextComposition>(*this, m_edit, *m_text, *m_steps, m_keys);
    connect(m_text.get(), &NoteText::changed, this, &NoteTextView::onChanged);
    connect(document, &QTextDocument::contentsChanged, this, &NoteTextView::polish);
    connect(document->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &NoteTextView::polish);
    connect(document->documentLayout(), &QAbstractTextDocumentLayout::update, this, &NoteTextView::polish);
    connect(target, &QQuickItem::widthChanged, this, &NoteTextView::polish);
    connect(target, SIGNAL(cursorPositionChanged()), this, SLOT(passLineBreak()));
    FieldGuard::leaveAlone(*target);
    target->installEventFilter(this);
    setText(std::exchange(m_loadedText, QString()));
}

void NoteTextView::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemEnabledHasChanged) {
        // Reopened before it was gone; another editor may have taken the commands meanwhile.
        if (data.boolValue && m_controller)
            m_controller->setTextView(this);
        // The host is closing the editor.
        if (!data.boolValue && m_composition)
            finishComposing();
    }
    QQuickItem::itemChange(change, data);
}

void NoteTextView::updatePolish()
{
    if (!m_text)
        return;
    m_boxes.update(
        boxgeometry::boxesBetween(*m_text, m_visibleTop, m_visibleTop + m_visibleHeight, m_look.scale()));
    if (!std::exchange(m_isLaidOut, true))
        Q_EMIT laidOut();
}

int NoteTextView::caretFlashTime()
{
    return QGuiApplication::styleHints()->cursorFlashTime();
}

QString NoteTextView::text() const
{
    return m_text ? m_text->text() : m_loadedText;
}

void NoteTextView::setText(const QString &text)
{
    if (!m_text) {
        m_loadedText = text;
        return;
    }
    if (m_text->text() == text)
        return;
    const Selection selection = m_edit.selection();
    m_text->load(text);
    m_steps->clear();
    m_edit.select(
        {.anchor = std::min(selection.anchor, text.size()), .caret = std::min(selection.caret, text.size())});
    Q_EMIT textChanged();
}

void NoteTextView::setController(NoteEditorController *controller)
{
    if (m_controller == controller)
        return;
    m_controller = controller;
    if (controller)
        controller->setTextView(this);
    Q_EMIT controllerChanged();
}

void NoteTextView::setDropPosition(int position)
{
    if (m_dropPosition == position)
        return;
    m_dropPosition = position;
    Q_EMIT dropPositionChanged();
}

void NoteTextView::passLineBreak()
{
    const Selection selection = m_edit.selection();
    const QStringView text(m_text->text());
    const qsizetype caret = selection.caret;
    if (caret < 1 || caret >= text.size() || text.at(caret - 1) != u'\r' || text.at(caret) != u'\n'
        || m_edit.isComposing())
        return;
    const qsizetype passed = m_isMovingRight ? caret + 1 : caret - 1;
    m_edit.select({.anchor = selection.isEmpty() ? passed : selection.anchor, .caret = passed});
}

void NoteTextView::onChanged(const Splice &change)
{
    m_isLaidOut = false;
    m_boxes.follow(change);
    m_steps->record(change);
    Q_EMIT textChanged();
    Q_EMIT edited(m_text->text());
}

void NoteTextView::undo()
{
    m_steps->undo();
}

void NoteTextView::redo()
{
    m_steps->redo();
}

void NoteTextView::cut()
{
    m_transfer->cut();
}

void NoteTextView::copy()
{
    m_transfer->copy();
}

void NoteTextView::paste()
{
    m_transfer->paste();
}

void NoteTextView::removeSelection()
{
    m_edit.endComposing();
    const Selection selection = m_edit.selection();
    m_steps->edit(selection.start(), selection.length(), {}, Selection::at(selection.start()));
}

void NoteTextView::selectAll()
{
    m_edit.select({.anchor = 0, .caret = m_text->text().size()});
}

void NoteTextView::drop()
{
    const int position = m_dropPosition;
    setDropPosition(-1);
    if (position < 0)
        return;
    forceFocus();
    m_transfer->dropAt(position);
}

void NoteTextView::toggleLinePrefix(const QString &marker)
{
    if (m_edit.isComposing())
        return;
    const Selection selection = m_edit.selection();
    const QTextBlock block = m_text->document().findBlock(static_cast<int>(selection.start()));
    const editrules::MarkerChange change = editrules::toggledPrefix(m_text->line(block), marker);
    const qsizetype start = block.position();
    // The selection is kept; positions inside the old marker move to the end of the new one.
    const auto moved = [&](qsizetype position) {
        return std::max(position, start + change.length) - change.length + change.marker.size();
    };
    m_steps->edit(start, change.length, change.marker.toString(),
                  {.anchor = moved(selection.anchor), .caret = moved(selection.caret)});
    forceFocus();
}

void NoteTextView::toggleBox(int position)
{
    if (m_edit.isComposing() || position < 0 || position >= m_text->text().size())
        return;
    const QStringView toggled = editrules::toggledBox(m_text->text().at(position));
    m_steps->edit(position, 1, toggled.toString(), m_edit.selection());
}

void NoteTextView::moveCaretToEnd()
{
    m_edit.select(Selection::at(m_text->text().size()));
}

void NoteTextView::forceFocus()
{
    m_edit.item()->forceActiveFocus();
}

void NoteTextView::focusWhenShown()
{
    m_focusTask.start();
}

void NoteTextView::publishSelection()
{
    // Later, because the item sees the event that ends the selecting only after this.
    QMetaObject::invokeMethod(m_transfer.get(), &TextTransfer::publishSelection, Qt::QueuedConnection);
}

bool NoteTextView::handleMouse(const QMouseEvent &event)
{
    // The item itself would paste from the toolkit's clipboard.
    if (event.button() == Qt::MiddleButton)
        m_edit.endComposing();
    return !m_edit.isComposing() && m_mouse->handle(event);
}

bool NoteTextView::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return m_keys.handleShortcut(static_cast<QKeyEvent &>(*event));
    case QEvent::KeyPress: {
        auto &key = static_cast<QKeyEvent &>(*event);
        m_steps->beforeKey(key.timestamp());
        m_isMovingRight = key.key() == Qt::Key_Right;
        return m_keys.handleKey(key);
    }
    case QEvent::InputMethod:
        return m_composition->handle(static_cast<const QInputMethodEvent &>(*event));
    case QEvent::FocusIn:
        m_keys.enter();
        return false;
    case QEvent::FocusOut:
        finishComposing();
        return false;
    case QEvent::KeyRelease:
        publishSelection();
        return false;
    case QEvent::MouseButtonRelease:
        publishSelection();
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_steps->endStep();
        [[fallthrough]];
    case QEvent::MouseMove:
        m_isMovingRight = false;
        return handleMouse(static_cast<const QMouseEvent &>(*event));
    default:
        return QQuickItem::eventFilter(watched, event);
    }
}

} // namespace vesk
