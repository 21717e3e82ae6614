// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQuickTextDocument>
#include <QTest>
#include <QTextCharFormat>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

Qt::Key keyOf(char32_t character)
{
    switch (character) {
    case u'\n':
        return Qt::Key_Return;
    case u'\b':
        return Qt::Key_Backspace;
    case u'\x1b':
        return Qt::Key_Escape;
    case u'\x7f':
        return Qt::Key_Delete;
    default:
        return static_cast<Qt::Key>(QChar::toUpper(character));
    }
}

} // namespace

EditorFixture::EditorFixture(const QString &properties, QSize size)
{
    lendToEditors(engine, pasteboard, &primary, &dragged);
    QQmlComponent component(&engine);
    component.setData(u"import QtQuick\nimport Vesk.Components\nimport Vesk.Editor\n"
                      "Rectangle { color: Theme.background\n"
                      "NoteEditor { objectName: \"editor\"; anchors.fill: parent; anchors.margins: 12; "
                      "fontSize: 14; %1 } }"_s.arg(properties)
                          .toUtf8(),
                      QUrl());
    m_root.reset(qobject_cast<QQuickItem *>(component.create()));
    if (!m_root)
        qFatal("%s", qUtf8Printable(component.errorString()));
    window.resize(size);
    m_root->setParentItem(window.contentItem());
    m_root->setSize(size);
    editor = m_root->findChild<QQuickItem *>(u"editor"_s);
    editor->setProperty("controller", QVariant::fromValue(&controller));
    const QList<QQuickItem *> items = editor->findChildren<QQuickItem *>();
    for (QQuickItem *item : items) {
        if (item->property("textDocument").isValid())
            edit = item;
    }
    window.show();
    window.requestActivate();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("The window does not become active.");
    QMetaObject::invokeMethod(editor, "forceFocus");
}

EditorFixture::~EditorFixture() = default;

void EditorFixture::load(const QString &text) const
{
    editor->setProperty("text", text);
}

QString EditorFixture::text() const
{
    return editor->property("text").toString();
}

void EditorFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease})
        send(type, key, modifiers, text, false);
}

void EditorFixture::hold(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (int i = 0; i < 3; ++i) {
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::ShortcutOverride, QEvent::KeyPress})
            send(type, key, modifiers, text, true);
    }
}

void EditorFixture::send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text,
                         bool isRepeated)
{
    QKeyEvent event(type, key, modifiers, text, isRepeated);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(type == QEvent::ShortcutOverride ? static_cast<QObject *>(edit) : &window,
                                &event);
}

void EditorFixture::type(const QString &keys, Qt::KeyboardModifiers modifiers)
{
    const QList<uint> characters = keys.toUcs4();
    for (const char32_t character : characters) {
        const Qt::Key key = keyOf(character);
        const bool isText = static_cast<char32_t>(key) == QChar::toUpper(character);
        press(key, modifiers,
              isText                  ? QString::fromUcs4(&character, 1)
              : key == Qt::Key_Return ? u"\r"_s
                                      : QString());
        time += 100;
    }
}

void EditorFixture::compose(const QString &preedit) const
{
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    QInputMethodEvent event(
        preedit, {{QInputMethodEvent::TextFormat, 0, static_cast<int>(preedit.size()), underlined}});
    QCoreApplication::sendEvent(edit, &event);
}

void EditorFixture::commit(const QString &text) const
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(edit, &event);
}

void EditorFixture::replace(int start, int length, const QString &text) const
{
    QInputMethodEvent event;
    event.setCommitString(text, start, length);
    QCoreApplication::sendEvent(edit, &event);
}

int EditorFixture::caret() const
{
    return edit->property("cursorPosition").toInt();
}

int EditorFixture::anchor() const
{
    const int start = edit->property("selectionStart").toInt();
    return caret() == start ? edit->property("selectionEnd").toInt() : start;
}

void EditorFixture::select(qsizetype anchor, qsizetype caret) const
{
    QMetaObject::invokeMethod(edit, "select", Q_ARG(int, static_cast<int>(anchor)),
                              Q_ARG(int, static_cast<int>(caret)));
}

QTextDocument &EditorFixture::document() const
{
    return *edit->property("textDocument").value<QQuickTextDocument *>()->textDocument();
}

QPoint EditorFixture::inWindow(const QPointF &point) const
{
    return edit->mapToScene(point).toPoint();
}

QRectF EditorFixture::rectangleOf(int position) const
{
    QRectF rectangle;
    QMetaObject::invokeMethod(edit, "positionToRectangle", Q_RETURN_ARG(QRectF, rectangle),
                              Q_ARG(int, position));
    return rectangle;
}

QList<QQuickItem *> EditorFixture::boxes() const
{
    QList<QQuickItem *> found;
    const QList<QQuickItem *> items = edit->childItems();
    for (QQuickItem *item : items) {
        if (item->property("isTicked").isValid())
            found.append(item);
    }
    return found;
}

} // namespace vesk
