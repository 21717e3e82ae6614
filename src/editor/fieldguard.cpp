// SPDX-License-Identifier: MIT
#include "editor/fieldguard.h"

#include "editor/editkeys.h"
#include "editor/fieldediting.h"
#include "editor/fieldtransfer.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QQuickItem>

namespace vesk {

namespace {

constexpr const char *kLeftAlone = "veskCopiesAndPastesItself";

bool handleKey(FieldTransfer &transfer, QKeyEvent &key)
{
    if (key.matches(QKeySequence::Copy))
        transfer.copy();
    else if (key.matches(QKeySequence::Cut))
        transfer.cut();
    else if (editkeys::isPaste(key))
        transfer.paste();
    else
        return false;
    key.accept();
    return true;
}

bool handleMouse(FieldTransfer &transfer, QMouseEvent &mouse)
{
    if (mouse.button() != Qt::MiddleButton)
        return false;
    if (mouse.type() != QEvent::MouseButtonRelease)
        transfer.pasteSelected(mouse.position());
    mouse.accept();
    return true;
}

/// Later, because the item sees the event that ends the selecting only after this.
void publishLater(FieldTransfer &transfer)
{
    QMetaObject::invokeMethod(&transfer, &FieldTransfer::publishSelection, Qt::QueuedConnection);
}

} // namespace

FieldGuard::FieldGuard(QQmlEngine &engine)
    : QObject(&engine)
    , m_engine(engine)
{
    qApp->installEventFilter(this);
}

void FieldGuard::leaveAlone(QQuickItem &item)
{
    item.setProperty(kLeftAlone, true);
}

bool FieldGuard::isGuarded(const QQuickItem &item) const
{
    return (item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit"))
           && !item.property(kLeftAlone).toBool() && qmlEngine(&item) == &m_engine;
}

bool FieldGuard::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        break;
    default:
        return false;
    }
    auto *item = qobject_cast<QQuickItem *>(watched);
    if (!item || !isGuarded(*item))
        return false;
    FieldEditing &editing = FieldEditing::of(*item);
    FieldTransfer &transfer = FieldTransfer::of(*item);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return editing.handleShortcut(static_cast<QKeyEvent &>(*event));
    case QEvent::KeyPress: {
        auto &key = static_cast<QKeyEvent &>(*event);
        return handleKey(transfer, key) || editing.handleKey(key);
    }
    case QEvent::InputMethod:
        return editing.handleInputMethod(static_cast<const QInputMethodEvent &>(*event));
    case QEvent::FocusIn:
        return false;
    case QEvent::KeyRelease:
        publishLater(transfer);
        return false;
    case QEvent::FocusOut:
        transfer.endComposing();
        return false;
    case QEvent::MouseButtonRelease:
        publishLater(transfer);
        [[fallthrough]];
    default:
        editing.steps().endStep();
        return handleMouse(transfer, static_cast<QMouseEvent &>(*event));
    }
}

} // namespace vesk
