// SPDX-License-Identifier: MIT
#pragma once

#include "editor/noteeditorcontroller.h"
#include "quicknote/quicknotebox.h"
#include "quicknote/quicknotemodel.h"
#include "quicknote/windowfade.h"

#include <QObject>
#include <QQuickView>

#include <memory>

class QQmlEngine;

namespace vesk {

class Application;
class Clock;
class NotesStore;
class Screens;
class Sounds;
class Toast;
class Windows;

/// The box for writing a note or a checklist without the panel. Its window is created when first shown, and
/// kept. It closes, keeping its draft, when it loses the focus.
class QuickNotePanel final : public QObject, public QuickNoteBox
{
    Q_OBJECT

public:
    /// The dependencies of the box, all of which must outlive it. The engine must have been lent its
    /// surroundings and pasteboards before.
    struct Needs
    {
        QQmlEngine &engine;
        NotesStore &store;
        Clock &clock;
        Application &application;
        Screens &screens;
        Windows &windows;
        Sounds &sounds;
        Toast &toast;
    };

    explicit QuickNotePanel(const Needs &needs);
    ~QuickNotePanel() override;

    void expect() override;
    void expectNothing() override;
    using QuickNoteBox::show;
    void show(Mode mode, const QString &remark) override;
    void close() override;
    [[nodiscard]] bool isShowing() const override { return m_isShowing; }
    /// Keeps the draft as a new note, closes the box and shows a notice. Does nothing if there is nothing to
    /// keep.
    void save();

    [[nodiscard]] QuickNoteModel &model() { return m_model; }
    /// Null until the box is first shown.
    [[nodiscard]] QQuickView *window() const { return m_view.get(); }

Q_SIGNALS:
    /// The box is about to open or to change its mode.
    void aboutToOpen();
    /// The box has closed, for whatever reason.
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeWindow();
    void setShowing(bool isShowing);
    void place();
    /// Gives the window its round corners.
    void shape();
    /// Makes the window follow the pointer while the button is down.
    void beginMove();
    /// Moves the window so that the pointer stays on the same point of it.
    void moveTo(QPoint pointer);
    void onFocusWindowChanged(const QWindow *window);

    Needs m_needs;
    QuickNoteModel m_model;
    NoteEditorController m_controller;
    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<WindowFade> m_fade;
    bool m_isShowing = false;
    /// Whether the box has had the focus since it opened.
    bool m_hadKeyboard = false;
    /// Whether the desktop lets the box choose its position.
    bool m_isPlaceable = false;
    bool m_isMoving = false;
    /// The point of the window that the pointer holds, relative to its corner.
    QPoint m_grip;
    QPoint m_pointer;
};

} // namespace vesk
