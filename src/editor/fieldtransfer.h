// SPDX-License-Identifier: MIT
#pragma once

#include "editor/edititem.h"

#include <QCoroTask>

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vesk {

class EditSteps;
class LentPasteboards;
class Pasteboard;

/// Copies from and pastes into one of the toolkit's text items, using the pasteboards that were lent to its
/// engine; attached to the item. The toolkit's own copying and pasting waits for the clipboard's owner, for
/// seconds if that program hangs. `FieldGuard` calls this for keys and the mouse; menus call it themselves.
/// Without pasteboards nothing is copied, cut or pasted.
class FieldTransfer : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Attached to text items.")
    QML_ATTACHED(vesk::FieldTransfer)

public:
    static FieldTransfer *qmlAttachedProperties(QObject *item);
    /// The object that belongs to this item, created on the first call.
    [[nodiscard]] static FieldTransfer &of(QQuickItem &item);

    Q_INVOKABLE void copy();
    Q_INVOKABLE void cut();
    /// Replaces the selection with the pasteboard's text. What is typed meanwhile follows it. The text goes
    /// to where it was requested, even if the focus has moved on by the time it arrives.
    Q_INVOKABLE void paste();
    /// Deletes the selection.
    Q_INVOKABLE void removeSelection();
    Q_INVOKABLE void selectAll();
    /// Replaces the selection with a text.
    Q_INVOKABLE void replaceSelection(const QString &text);
    [[nodiscard]] Q_INVOKABLE bool hasSelection() const { return !m_edit.selection().isEmpty(); }
    [[nodiscard]] Q_INVOKABLE bool hasText() const;
    /// Inserts what was last selected in any program at a point of the item.
    void pasteSelected(const QPointF &point);
    /// Offers a new selection to the middle mouse button, here and in other programs.
    void publishSelection();
    /// Commits what an input method is composing.
    void endComposing() { m_edit.endComposing(); }

    [[nodiscard]] bool isReadOnly() const;

private Q_SLOTS:
    void onSelectionChanged() { m_isSelectionNew = true; }

private:
    explicit FieldTransfer(QQuickItem &item);

    [[nodiscard]] QQuickItem &item() const { return *m_edit.item(); }
    [[nodiscard]] LentPasteboards *lent() const;
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] EditSteps &steps() const;
    QCoro::Task<> insertFrom(Pasteboard &pasteboard, Selection place);

    EditItem m_edit;
    bool m_isSelectionNew = false;
};

} // namespace vesk
