// SPDX-License-Identifier: MIT
#pragma once

#include "../components/memorydesktop.h"
#include "editor/lentpasteboards.h"
#include "editor/noteeditorcontroller.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTextDocument>

#include <memory>

namespace vesk {

/// A real editor in a real window, for real keys.
class EditorFixture final : public MemoryDesktop
{
public:
    /// `properties` are QML, for the editor. The window has the keyboard when this returns.
    explicit EditorFixture(const QString &properties = {}, QSize size = QSize(320, 300));
    ~EditorFixture();

    void load(const QString &text) const;
    [[nodiscard]] QString text() const;
    /// Types key by key: \n is Return, \b Backspace, \x1b Escape, and \x7f Delete.
    void type(const QString &keys, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {});
    /// What comes while a key is held, three times.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {});
    /// What an input method does: shows what is being composed, then writes a text.
    void compose(const QString &preedit) const;
    void commit(const QString &text) const;
    /// Writes a text in place of another one, whose start is counted from the caret.
    void replace(int start, int length, const QString &text) const;

    [[nodiscard]] int caret() const;
    [[nodiscard]] int anchor() const;
    void select(qsizetype anchor, qsizetype caret) const;
    [[nodiscard]] QTextDocument &document() const;
    /// A point of the window, from one of the text item.
    [[nodiscard]] QPoint inWindow(const QPointF &point) const;
    [[nodiscard]] QRectF rectangleOf(int position) const;
    /// The window as it is painted.
    [[nodiscard]] QImage picture() { return window.grabWindow(); }
    /// Has the window painted, and so everything laid out.
    void paint() { static_cast<void>(picture()); }
    [[nodiscard]] QList<QQuickItem *> boxes() const;

    NoteEditorController controller;
    QQuickWindow window;
    QQuickItem *editor = nullptr;
    QQuickItem *edit = nullptr;
    /// The time of the keys, in milliseconds.
    quint64 time = 1000;

private:
    void send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text,
              bool isRepeated);

    std::unique_ptr<QQuickItem> m_root;
};

} // namespace vesk
