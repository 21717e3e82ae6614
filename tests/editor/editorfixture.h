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
    /// `properties` are QML properties of the editor. The window has the focus when this returns.
    explicit EditorFixture(const QString &properties = {}, QSize size = QSize(320, 300));
    ~EditorFixture();

    void load(const QString &text) const;
    [[nodiscard]] QString text() const;
    /// Types key by key: \n is Return, \b Backspace, \x1b Escape, and \x7f Delete.
    void type(const QString &keys, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {});
    /// Types the three repeats of a held key.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {});
    /// Acts like an input method: shows what is being composed, then commits a text.
    void compose(const QString &preedit) const;
    void commit(const QString &text) const;
    /// Commits a text that replaces another, whose start is relative to the caret.
    void replace(int start, int length, const QString &text) const;

    [[nodiscard]] int caret() const;
    [[nodiscard]] int anchor() const;
    void select(qsizetype anchor, qsizetype caret) const;
    [[nodiscard]] QTextDocument &document() const;
    /// Converts a point of the text item into one of the window.
    [[nodiscard]] QPoint inWindow(const QPointF &point) const;
    [[nodiscard]] QRectF rectangleOf(int position) const;
    /// The window's contents as painted.
    [[nodiscard]] QImage picture() { return window.grabWindow(); }
    /// Paints the window, so that everything is laid out.
    void paint() { static_cast<void>(picture()); }
    [[nodiscard]] QList<QQuickItem *> boxes() const;

    NoteEditorController controller;
    QQuickWindow window;
    QQuickItem *editor = nullptr;
    QQuickItem *edit = nullptr;
    /// The time stamp of the keys, in milliseconds.
    quint64 time = 1000;

private:
    void send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text,
              bool isRepeated);

    std::unique_ptr<QQuickItem> m_root;
};

} // namespace vesk
