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

/// Copies from and pastes into one of the toolkit's text items by the pasteboards that were lent to its
/// engine; attached to the item. The toolkit's own copying and pasting waits for whoever owns the
/// clipboard, for seconds if that program hangs. `FieldGuard` calls this for keys and the mouse, menus
/// call it themselves. Without pasteboards nothing is copied, cut or pasted.
class FieldTransfer : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Attached to text items.")
    QML_ATTACHED(vesk::FieldTransfer)

public:
    static FieldTransfer *qmlAttachedProperties(QObject *item);
    /// What belongs to this item; made at the first call.
    [[nodiscard]] static FieldTransfer &of(QQuickItem &item);

    Q_INVOKABLE void copy();
    Q_INVOKABLE void cut();
    /// Puts the pasteboard's text in place of the selection. What is typed meanwhile comes after it. The
    /// text goes where it was asked for, even if the keyboard has moved on by the time it comes.
    Q_INVOKABLE void paste();
    /// Deletes what is selected.
    Q_INVOKABLE void removeSelection();
    Q_INVOKABLE void selectAll();
    /// Writes a text in place of what is selected.
    Q_INVOKABLE void replaceSelection(const QString &text);
    [[nodiscard]] Q_INVOKABLE bool hasSelection() const { return !m_edit.selection().isEmpty(); }
    [[nodiscard]] Q_INVOKABLE bool hasText() const;
    /// Puts what was last selected, anywhere, at a point of the item.
    void pasteSelected(const QPointF &point);
    /// Offers a new selection for the middle mouse button, here and elsewhere.
    void publishSelection();
    /// Writes what an input method is composing into the text.
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
