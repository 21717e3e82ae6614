// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// What has the focus in the panel, as its views report, and requests to it. Owned by the panel's model.
class PanelKeyboard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// The field that has the focus. Written by the view.
    Q_PROPERTY(vesk::PanelKeyboard::Field activeField READ activeField WRITE setActiveField NOTIFY
                   activeFieldChanged)
    /// The field that the view must focus each time `fieldRequest` increases.
    Q_PROPERTY(vesk::PanelKeyboard::Field requestedField READ requestedField NOTIFY requestedFieldChanged)
    Q_PROPERTY(qint64 fieldRequest READ fieldRequest NOTIFY fieldRequestChanged)
    /// Whether a button has the focus, so that Return presses it; all other keys are the panel's. Written by
    /// the view, like the next two.
    Q_PROPERTY(bool isOnControl MEMBER m_isOnControl NOTIFY changed)
    /// Whether the open note's editor has the focus; it then gets all keys.
    Q_PROPERTY(bool isEditing MEMBER m_isEditing NOTIFY changed)
    /// Whether an input method is composing in a field; it then gets all keys.
    Q_PROPERTY(bool isComposing MEMBER m_isComposing NOTIFY changed)

public:
    /// The text fields that can have the focus.
    enum class Field {
        /// No field has the focus; the keys go to the list.
        None,
        Search,
        Composer,
    };
    Q_ENUM(Field)

    /// Requests that a field, or with `None` no field, gets the focus.
    void request(Field field);

    [[nodiscard]] Field activeField() const { return m_activeField; }
    void setActiveField(Field field);
    [[nodiscard]] bool isInField() const { return m_activeField != Field::None; }
    [[nodiscard]] Field requestedField() const { return m_requestedField; }
    [[nodiscard]] qint64 fieldRequest() const { return m_fieldRequest; }
    [[nodiscard]] bool isOnControl() const { return m_isOnControl; }
    [[nodiscard]] bool isEditing() const { return m_isEditing; }
    [[nodiscard]] bool isComposing() const { return m_isComposing; }

Q_SIGNALS:
    void activeFieldChanged();
    void requestedFieldChanged();
    void fieldRequestChanged();
    void changed();
    /// The focused field must show its menu, or the selected card if no field has the focus.
    void menuRequested();
    /// The composer must insert a line break at its caret.
    void lineBreakRequested();

private:
    Field m_activeField = Field::None;
    Field m_requestedField = Field::None;
    qint64 m_fieldRequest = 0;
    bool m_isOnControl = false;
    bool m_isEditing = false;
    bool m_isComposing = false;
};

} // namespace vesk
