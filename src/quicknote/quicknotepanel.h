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

/// The box in which a note or a checklist is written without the panel. Its window is made when it is
/// first shown, and kept. It goes away, with its draft kept, when the keyboard does.
class QuickNotePanel final : public QObject, public QuickNoteBox
{
    Q_OBJECT

public:
    /// What the box works with; all of it outlives the box. The engine has to be lent its surroundings
    /// and its pasteboards before.
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
    /// Keeps the draft as a new note, closes the box and says so. Does nothing while there is nothing
    /// to keep.
    void save();

    [[nodiscard]] QuickNoteModel &model() { return m_model; }
    /// Null before the box was first shown.
    [[nodiscard]] QQuickView *window() const { return m_view.get(); }

Q_SIGNALS:
    /// The box is about to come up, or to change its mode.
    void aboutToOpen();
    /// The box has gone, for whatever reason.
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeWindow();
    void setShowing(bool isShowing);
    void place();
    /// Gives the window its round corners.
    void shape();
    /// Has the window follow the pointer while the button is down.
    void beginMove();
    /// Moves the window so that the pointer keeps its hold of it.
    void moveTo(QPoint pointer);
    void onFocusWindowChanged(const QWindow *window);

    Needs m_needs;
    QuickNoteModel m_model;
    NoteEditorController m_controller;
    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<WindowFade> m_fade;
    bool m_isShowing = false;
    /// Whether the box has had the keyboard since it came up.
    bool m_hadKeyboard = false;
    /// Whether the desktop lets the box choose its place.
    bool m_isPlaceable = false;
    bool m_isMoving = false;
    /// Where the pointer has hold of the window, from its corner.
    QPoint m_grip;
    QPoint m_pointer;
};

} // namespace vesk
