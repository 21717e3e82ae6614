// SPDX-License-Identifier: MIT
#include "editor/fieldguard.h"

#include "editor/fieldtransfer.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QQuickItem>

namespace vesk {

namespace {

constexpr const char *kLeftAlone = "veskCopiesAndPastesItself";

/// Some desktops, and terminals, paste plain text by these keys.
bool isPastingPlainText(const QKeyEvent &key)
{
    return key.key() == Qt::Key_V && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
}

bool handleKey(FieldTransfer &transfer, QKeyEvent &key)
{
    if (key.matches(QKeySequence::Copy))
        transfer.copy();
    else if (key.matches(QKeySequence::Cut))
        transfer.cut();
    else if (key.matches(QKeySequence::Paste) || isPastingPlainText(key))
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

/// The item sees what ends the selecting after this.
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
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::FocusOut:
        break;
    default:
        return false;
    }
    auto *item = qobject_cast<QQuickItem *>(watched);
    if (!item || !isGuarded(*item))
        return false;
    FieldTransfer &transfer = FieldTransfer::of(*item);
    switch (event->type()) {
    case QEvent::KeyPress:
        return handleKey(transfer, static_cast<QKeyEvent &>(*event));
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
        return handleMouse(transfer, static_cast<QMouseEvent &>(*event));
    }
}

} // namespace vesk
