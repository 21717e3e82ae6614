// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// Who has the keyboard in the panel, as its views tell, and what is asked of whoever has it. Owned by
/// the panel's model.
class PanelKeyboard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// The field that has the keyboard. Written by the view.
    Q_PROPERTY(vesk::PanelKeyboard::Field activeField READ activeField WRITE setActiveField NOTIFY
                   activeFieldChanged)
    /// The field that the view shall give the keyboard to, each time that `fieldRequest` rises.
    Q_PROPERTY(vesk::PanelKeyboard::Field requestedField READ requestedField NOTIFY requestedFieldChanged)
    Q_PROPERTY(qint64 fieldRequest READ fieldRequest NOTIFY fieldRequestChanged)
    /// Whether a button has the keyboard, which Return presses; the other keys are the panel's. Written
    /// by the view, like the two below.
    Q_PROPERTY(bool isOnControl MEMBER m_isOnControl NOTIFY changed)
    /// The open note's editor has the keyboard; all keys are its own.
    Q_PROPERTY(bool isEditing MEMBER m_isEditing NOTIFY changed)
    /// An input method is composing a text in a field; then the keys are its own.
    Q_PROPERTY(bool isComposing MEMBER m_isComposing NOTIFY changed)

public:
    /// The text fields that can have the keyboard.
    enum class Field {
        /// Neither has it; the keys go to the list.
        None,
        Search,
        Composer,
    };
    Q_ENUM(Field)

    /// Asks for a field, or with `None` for neither, to have the keyboard.
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
    /// The field that has the keyboard shall show its menu, or if neither has it the selected card.
    void menuRequested();
    /// The composer shall break the line where its caret is.
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
