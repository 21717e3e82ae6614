// SPDX-License-Identifier: MIT
#pragma once

#include "editor/edititem.h"
#include "editor/editsteps.h"
#include "editor/focustask.h"
#include "editor/noteeditorcontroller.h"
#include "editor/notetextkeys.h"
#include "editor/notetextlook.h"
#include "editor/visibleboxes.h"

#include <QPointer>
#include <QQuickItem>

#include <memory>

class QMouseEvent;

namespace vesk {

class NoteText;
class TextComposition;
class TextMouse;
class TextTransfer;

/// The behaviour of a note's editor: makes the toolkit's text item, its target, edit a note's text. Sees the
/// item's events before the item does, and decides what happens to them.
class NoteTextView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(
        vesk::NoteEditorController *controller READ controller WRITE setController NOTIFY controllerChanged)
    Q_PROPERTY(vesk::NoteTextKeys *keys READ keys CONSTANT)
    Q_PROPERTY(vesk::NoteTextLook *look READ look CONSTANT)
    /// Top and height of the target's visible part, in the target's coordinates.
    Q_PROPERTY(qreal visibleTop MEMBER m_visibleTop NOTIFY visiblePartChanged)
    Q_PROPERTY(qreal visibleHeight MEMBER m_visibleHeight NOTIFY visiblePartChanged)
    Q_PROPERTY(QAbstractItemModel *boxes READ boxes CONSTANT)
    /// In milliseconds; 0 if the caret must not blink.
    Q_PROPERTY(int caretFlashTime READ caretFlashTime CONSTANT)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY textChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY textChanged)
    /// Where a dragged text would be inserted; negative if nowhere.
    Q_PROPERTY(int dropPosition READ dropPosition WRITE setDropPosition NOTIFY dropPositionChanged)

public:
    explicit NoteTextView(QQuickItem *parent = nullptr);
    ~NoteTextView() override;

    // Actions of menus and the host; each change of the text is undone as one step.
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    Q_INVOKABLE void cut();
    Q_INVOKABLE void copy();
    Q_INVOKABLE void paste();
    Q_INVOKABLE void removeSelection();
    Q_INVOKABLE void selectAll();
    void toggleLinePrefix(const QString &marker);
    /// Toggles the checkbox at this position; the selection is kept.
    Q_INVOKABLE void toggleBox(int position);
    void moveCaretToEnd();
    Q_INVOKABLE void forceFocus();
    /// Commits the text being composed.
    void finishComposing() { m_edit.endComposing(); }
    /// Gives the text the focus as soon as its window can have it, or after half a second.
    Q_INVOKABLE void focusWhenShown();
    /// Gives it the focus now if it is waiting for it; returns whether it did.
    bool focusIfAwaited() { return m_focusTask.finish(); }
    /// Inserts a dropped text where it is dropped. Must be called while the drop is being handled, because
    /// its source does not offer the text for longer.
    Q_INVOKABLE void drop();

    [[nodiscard]] QQuickItem *target() const { return m_edit.item(); }
    void setTarget(QQuickItem *target);
    [[nodiscard]] QString text() const;
    void setText(const QString &text);
    [[nodiscard]] NoteEditorController *controller() const { return m_controller; }
    void setController(NoteEditorController *controller);
    [[nodiscard]] NoteTextKeys *keys() { return &m_keys; }
    [[nodiscard]] NoteTextLook *look() { return &m_look; }
    [[nodiscard]] qreal visibleHeight() const { return m_visibleHeight; }
    [[nodiscard]] QAbstractItemModel *boxes() { return &m_boxes; }
    [[nodiscard]] static int caretFlashTime();
    [[nodiscard]] bool canUndo() const { return m_steps && m_steps->canUndo(); }
    [[nodiscard]] bool canRedo() const { return m_steps && m_steps->canRedo(); }
    [[nodiscard]] int dropPosition() const { return m_dropPosition; }
    void setDropPosition(int position);

public Q_SLOTS:
    /// Moves the caret out of a two-character line break from another system.
    void passLineBreak();

Q_SIGNALS:
    void targetChanged();
    /// Emitted after each change, whoever made it.
    void textChanged();
    /// Emitted after each change by the user.
    void edited(const QString &text);
    void controllerChanged();
    void visiblePartChanged();
    void dropPositionChanged();
    /// Emitted after a change of the text is laid out, before it is painted.
    void laidOut();
    /// The menu must be shown at this point of the target.
    void contextMenuRequested(const QPointF &point);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    void onChanged(const Splice &change);
    void publishSelection();
    bool handleMouse(const QMouseEvent &event);

    EditItem m_edit;
    std::unique_ptr<NoteText> m_text;
    std::unique_ptr<EditSteps> m_steps;
    std::unique_ptr<TextTransfer> m_transfer;
    std::unique_ptr<TextMouse> m_mouse;
    std::unique_ptr<TextComposition> m_composition;
    NoteTextKeys m_keys{*this, m_edit};
    NoteTextLook m_look;
    VisibleBoxes m_boxes;
    FocusTask m_focusTask{*this};
    QPointer<NoteEditorController> m_controller;

    bool m_isLaidOut = true;
    QString m_loadedText;
    qreal m_visibleTop = 0;
    qreal m_visibleHeight = 0;
    int m_dropPosition = -1;
    bool m_isMovingRight = false;
};

} // namespace vesk
