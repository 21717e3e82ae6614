// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "panel/notelistmodel.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

class QKeyEvent;

namespace vesk {

class Accessibility;
class Application;
class Clock;
class Defaults;
class NotesStore;

/// The state behind the panel and the rules of its keys. The views show it and forward to it; it
/// knows no window. Records are kept by identity only and looked up each time.
class PanelModel final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made when the program starts.")
    Q_PROPERTY(vesk::NoteListModel *notes READ notes CONSTANT)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    /// The search text as it is compared and highlighted.
    Q_PROPERTY(QString query READ query NOTIFY searchChanged)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    /// The identity of the selected item; empty for none.
    Q_PROPERTY(QString focusedId READ focusedId NOTIFY focusedChanged)
    /// The field that has the keyboard. Written by the view.
    Q_PROPERTY(
        vesk::PanelModel::Field activeField READ activeField WRITE setActiveField NOTIFY activeFieldChanged)
    /// The field that the view shall give the keyboard to, each time that `fieldRequest` rises.
    Q_PROPERTY(vesk::PanelModel::Field requestedField READ requestedField NOTIFY requestedFieldChanged)
    Q_PROPERTY(qint64 fieldRequest READ fieldRequest NOTIFY fieldRequestChanged)
    /// An input method is composing a text in a field; then the keys are its own. Written by the view.
    Q_PROPERTY(bool isComposing READ isComposing WRITE setComposing NOTIFY isComposingChanged)
    /// Whether Vesk may read the text selected in other applications.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY isTrustedChanged)

public:
    /// The text fields that can have the keyboard.
    enum class Field {
        /// Neither has it; the keys go to the list.
        None,
        Search,
        Composer,
    };
    Q_ENUM(Field)

    /// All of these have to outlive the model.
    PanelModel(NotesStore &store, Clock &clock, Defaults &defaults, Application &application,
               Accessibility &accessibility, QObject *parent = nullptr);

    /// Takes a key press of the panel's window. True if it was for the panel; else it goes on to the
    /// field that has the keyboard.
    bool handleKey(const QKeyEvent &event);

    /// Asks for a field, or with `None` for neither, to have the keyboard; the panel comes up for a field.
    void requestField(Field field);
    /// Puts a text in place of the selection in the field that has the keyboard, if one has it.
    void insertIntoField(const QString &text) { Q_EMIT insertRequested(text); }
    /// Turns the draft of the composer into a note; a blank one stays as it is.
    void commitDraft();
    /// Deletes a note; the selection passes on to what takes its place.
    void deleteNote(const RecordId &id);
    void togglePinned(const RecordId &id);
    Q_INVOKABLE void toggleItem(const QString &noteId, int line);
    /// Selects an item.
    Q_INVOKABLE void focus(const QString &id);
    /// Has the user asked whether Vesk may read other applications.
    Q_INVOKABLE void askForTrust();

    /// To be called before each show: nothing is searched for, and the day and times are of now.
    void prepareToShow();
    /// To be called when the panel has gone: nothing is selected and no field has the keyboard.
    void becomeHidden();

    [[nodiscard]] NoteListModel *notes() { return &m_notes; }
    [[nodiscard]] const QString &search() const { return m_search; }
    void setSearch(const QString &search);
    [[nodiscard]] QString query() const;
    [[nodiscard]] const QString &draft() const { return m_draft; }
    void setDraft(const QString &draft);
    [[nodiscard]] const std::optional<RecordId> &focused() const { return m_focused; }
    [[nodiscard]] QString focusedId() const;
    void setFocused(const std::optional<RecordId> &id);
    [[nodiscard]] Field activeField() const { return m_activeField; }
    void setActiveField(Field field);
    [[nodiscard]] Field requestedField() const { return m_requestedField; }
    [[nodiscard]] qint64 fieldRequest() const { return m_fieldRequest; }
    [[nodiscard]] bool isComposing() const { return m_isComposing; }
    void setComposing(bool isComposing);
    [[nodiscard]] bool isTrusted() const;

Q_SIGNALS:
    void searchChanged();
    void draftChanged();
    void focusedChanged();
    void activeFieldChanged();
    void requestedFieldChanged();
    void fieldRequestChanged();
    void isComposingChanged();
    void isTrustedChanged();
    /// A field was asked for, so the panel has to be up and have the keyboard. The receiver shows it
    /// before it returns.
    void showRequested();
    /// The field that has the keyboard shall get what is on the pasteboard, by `insertIntoField`. The
    /// fields do not read it themselves, since that would wait for whoever owns it.
    void fieldPasteRequested();
    /// The field that has the keyboard shall put this in place of its selection.
    void insertRequested(const QString &text);
    /// A text shall be pasted into the application that the user came from.
    void pasteRequested(const QString &text);
    /// The composer shall break the line where its caret is.
    void lineBreakRequested();

private:
    bool handleArrow(int delta);
    bool handleEscape();
    bool handleReturn(Qt::KeyboardModifiers modifiers);
    bool deleteFocused();
    bool pasteFocused();
    void moveFocus(int delta);
    void moveFocusAway(const RecordId &id);

    NotesStore &m_store;
    Clock &m_clock;
    Application &m_application;
    Accessibility &m_accessibility;
    NoteListModel m_notes;
    QString m_search;
    QString m_draft;
    std::optional<RecordId> m_focused;
    Field m_activeField = Field::None;
    Field m_requestedField = Field::None;
    qint64 m_fieldRequest = 0;
    bool m_isComposing = false;
};

} // namespace vesk
