// SPDX-License-Identifier: MIT
#pragma once

#include "editor/noteeditorcontroller.h"
#include "guide/guide.h"
#include "notes/record.h"
#include "panel/cardactions.h"
#include "panel/notelistmodel.h"
#include "panel/panelmenu.h"
#include "panel/promptlistmodel.h"

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
enum class PanelAction;

/// The state behind the panel and the rules of its keys. The views show it and forward to it; it
/// knows no window. Records are kept by identity only and looked up each time.
class PanelModel final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made when the program starts.")
    Q_PROPERTY(vesk::NoteListModel *notes READ notes CONSTANT)
    Q_PROPERTY(vesk::PromptListModel *prompts READ prompts CONSTANT)
    Q_PROPERTY(vesk::CardActions *cards READ cards CONSTANT)
    Q_PROPERTY(vesk::PanelMenu *menu READ menu CONSTANT)
    Q_PROPERTY(vesk::Guide *guide READ guide CONSTANT)
    /// A handle on the text of the open note.
    Q_PROPERTY(vesk::NoteEditorController *editor READ editor CONSTANT)
    Q_PROPERTY(vesk::PanelModel::Tab tab READ tab WRITE setTab NOTIFY tabChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    /// The search text as it is compared and highlighted.
    Q_PROPERTY(QString query READ query NOTIFY searchChanged)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    /// The identity of the note that is open in its editor; empty for none.
    Q_PROPERTY(QString expandedId READ expandedId NOTIFY expandedChanged)
    /// The identity of the selected item; empty for none.
    Q_PROPERTY(QString focusedId READ focusedId NOTIFY focusedChanged)
    /// The field that has the keyboard. Written by the view; a field that gains it closes the note.
    Q_PROPERTY(
        vesk::PanelModel::Field activeField READ activeField WRITE setActiveField NOTIFY activeFieldChanged)
    /// The field that the view shall give the keyboard to, each time that `fieldRequest` rises.
    Q_PROPERTY(vesk::PanelModel::Field requestedField READ requestedField NOTIFY requestedFieldChanged)
    Q_PROPERTY(qint64 fieldRequest READ fieldRequest NOTIFY fieldRequestChanged)
    /// Whether a button has the keyboard, which Return presses; the other keys are the panel's. Written
    /// by the view, like the two below.
    Q_PROPERTY(bool isOnControl MEMBER m_isOnControl NOTIFY keyboardChanged)
    /// The open note's editor has the keyboard; all keys are its own.
    Q_PROPERTY(bool isEditing MEMBER m_isEditing NOTIFY keyboardChanged)
    /// An input method is composing a text in a field; then the keys are its own.
    Q_PROPERTY(bool isComposing MEMBER m_isComposing NOTIFY keyboardChanged)
    /// Whether Vesk may read the text selected in other applications.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY isTrustedChanged)

public:
    enum class Tab {
        Notes,
        Checklists,
        Prompts,
    };
    Q_ENUM(Tab)

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

    /// Takes a key press of the panel's window. True if it was for the panel; else it goes on to
    /// whatever has the keyboard.
    bool handleKey(const QKeyEvent &event);

    /// Opens a note in its place, after closing the one that is open.
    void open(const Note &note);
    /// Closes the open note; one that was left blank is removed.
    Q_INVOKABLE void collapse();
    /// What the user has made of a note's text. Saved within two seconds, and when the note is closed.
    void edit(Note &note, const QString &text);
    void togglePinned(Note &note);
    void toggleItem(Note &note, int line);
    void toggleDone(Prompt &prompt);
    // The selection passes on to what takes the place of what is deleted.
    void deleteNote(Note &note);
    void deletePrompt(Prompt &prompt);
    Q_INVOKABLE void clearDonePrompts();

    /// Asks for a field, or with `None` for neither, to have the keyboard; the panel comes up for a field,
    /// without the guide.
    Q_INVOKABLE void requestField(vesk::PanelModel::Field field);
    /// Puts a text in place of the selection in the field that has the keyboard, if one has it.
    void insertIntoField(const QString &text) { Q_EMIT insertRequested(text); }
    /// Turns the draft of the composer into a note, or on their tab into a prompt; a blank one stays as
    /// it is.
    void commitDraft();
    /// Selects the first item, unless one that is shown is selected.
    Q_INVOKABLE void selectSomething();
    /// Has the user asked whether Vesk may read other applications.
    Q_INVOKABLE void askForTrust();

    /// To be called before each show: nothing is searched for, the day and times are of now, and a new
    /// user is shown the guide.
    void prepareToShow();
    /// To be called when the panel has gone: no note is open, nothing is selected and no field has the
    /// keyboard.
    void becomeHidden();

    [[nodiscard]] NoteListModel *notes() { return &m_notes; }
    [[nodiscard]] PromptListModel *prompts() { return &m_prompts; }
    [[nodiscard]] CardActions *cards() { return &m_cards; }
    [[nodiscard]] PanelMenu *menu() { return &m_menu; }
    [[nodiscard]] Guide *guide() { return &m_guide; }
    [[nodiscard]] NoteEditorController *editor() { return &m_editor; }
    [[nodiscard]] Tab tab() const { return m_tab; }
    void setTab(Tab tab);
    [[nodiscard]] const QString &search() const { return m_search; }
    void setSearch(const QString &search);
    [[nodiscard]] QString query() const;
    [[nodiscard]] const QString &draft() const { return m_draft; }
    void setDraft(const QString &draft);
    [[nodiscard]] const std::optional<RecordId> &expanded() const { return m_expanded; }
    [[nodiscard]] QString expandedId() const;
    [[nodiscard]] const std::optional<RecordId> &focused() const { return m_focused; }
    [[nodiscard]] QString focusedId() const;
    void setFocused(const std::optional<RecordId> &id);
    [[nodiscard]] Field activeField() const { return m_activeField; }
    void setActiveField(Field field);
    [[nodiscard]] Field requestedField() const { return m_requestedField; }
    [[nodiscard]] qint64 fieldRequest() const { return m_fieldRequest; }
    [[nodiscard]] bool isTrusted() const;

Q_SIGNALS:
    void tabChanged();
    void searchChanged();
    void draftChanged();
    void expandedChanged();
    void focusedChanged();
    void activeFieldChanged();
    void requestedFieldChanged();
    void fieldRequestChanged();
    void keyboardChanged();
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
    bool perform(PanelAction action, int key);
    bool openFound();
    bool openSelected();
    bool deleteSelected();
    bool pasteSelected();
    void moveFocus(int delta);
    void moveFocusAway(const RecordId &id);
    void setExpanded(const std::optional<RecordId> &id);
    void searchCurrentList();
    [[nodiscard]] SectionedListModel &currentList();
    static QCoro::Task<> saveSoon(QPointer<PanelModel> self, Clock *clock);

    NotesStore &m_store;
    Clock &m_clock;
    Application &m_application;
    Accessibility &m_accessibility;
    NoteListModel m_notes;
    PromptListModel m_prompts;
    CardActions m_cards;
    PanelMenu m_menu;
    Guide m_guide;
    NoteEditorController m_editor;
    Tab m_tab = Tab::Notes;
    QString m_search;
    QString m_draft;
    std::optional<RecordId> m_expanded;
    std::optional<RecordId> m_focused;
    Field m_activeField = Field::None;
    Field m_requestedField = Field::None;
    qint64 m_fieldRequest = 0;
    bool m_isOnControl = false;
    bool m_isEditing = false;
    bool m_isComposing = false;
    bool m_savesSoon = false;
};

} // namespace vesk
