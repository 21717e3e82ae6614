// SPDX-License-Identifier: MIT
#pragma once

#include "editor/edititem.h"
#include "editor/editsteps.h"
#include "editor/fieldtext.h"
#include "editor/paragraphdirections.h"

#include <QObject>

#include <optional>

class QInputMethodEvent;
class QKeyEvent;

namespace vesk {

/// Makes a text field erase and undo like note editors, and gives each of its paragraphs its own direction.
/// Owned by its item. `FieldGuard` passes it the events before the item sees them.
class FieldEditing final : public QObject
{
    Q_OBJECT

public:
    /// The object that belongs to this item, created on the first call.
    [[nodiscard]] static FieldEditing &of(QQuickItem &item);

    // Returns true if the event was handled here, false if it is for the item.
    bool handleShortcut(QKeyEvent &event) const;
    bool handleKey(QKeyEvent &event);
    bool handleInputMethod(const QInputMethodEvent &event);

    /// Changes made through these are undone like all others.
    [[nodiscard]] EditSteps &steps() { return m_steps; }

private:
    explicit FieldEditing(QQuickItem &item);

    [[nodiscard]] bool isReadOnly() const;

    EditItem m_edit;
    FieldText m_text{m_edit};
    EditSteps m_steps{m_edit, m_text};
    std::optional<ParagraphDirections> m_directions;
};

} // namespace vesk
