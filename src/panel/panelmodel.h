// SPDX-License-Identifier: MIT
#pragma once

#include "editor/noteeditorcontroller.h"
#include "guide/guide.h"
#include "panel/cardactions.h"
#include "panel/cardselection.h"
#include "panel/notelistmodel.h"
#include "panel/opennote.h"
#include "panel/panelheight.h"
#include "panel/panelkeyboard.h"
#include "panel/panelkeys.h"
#include "panel/panelmenu.h"
#include "panel/promptlistmodel.h"

#include <QObject>
#include <QQmlEngine>

class QKeyEvent;

namespace vesk {

class Accessibility;
class Application;
class Clock;
class Defaults;
class NotesStore;

/// The state behind the panel. The views display it and forward input to it; it does not know about windows.
/// Records are held by identity only and looked up each time.
class PanelModel final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made when the program starts.")
    Q_PROPERTY(vesk::NoteListModel *notes READ notes CONSTANT)
    Q_PROPERTY(vesk::PromptListModel *prompts READ prompts CONSTANT)
    Q_PROPERTY(vesk::CardActions *cards READ cards CONSTANT)
    Q_PROPERTY(vesk::CardSelection *selection READ selection CONSTANT)
    Q_PROPERTY(vesk::OpenNote *openNote READ openNote CONSTANT)
    Q_PROPERTY(vesk::PanelKeyboard *keyboard READ keyboard CONSTANT)
    Q_PROPERTY(vesk::PanelMenu *menu READ menu CONSTANT)
    Q_PROPERTY(vesk::Guide *guide READ guide CONSTANT)
    Q_PROPERTY(vesk::PanelHeight *height READ height CONSTANT)
    /// Access to the text of the open note.
    Q_PROPERTY(vesk::NoteEditorController *editor READ editor CONSTANT)
    Q_PROPERTY(vesk::PanelModel::Tab tab READ tab WRITE setTab NOTIFY tabChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    /// The search text in the form that is compared and highlighted.
    Q_PROPERTY(QString query READ query NOTIFY searchChanged)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    /// Whether Vesk may read the text selected in other applications.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY isTrustedChanged)
    /// Why something could not be saved or copied, as one sentence; empty if there is no problem.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    enum class Tab {
        Notes,
        Checklists,
        Prompts,
    };
    Q_ENUM(Tab)

    using Field = PanelKeyboard::Field;

    /// All must outlive the model.
    PanelModel(NotesStore &store, Clock &clock, Defaults &defaults, Application &application,
               Accessibility &accessibility);

    /// Handles a key press of the panel's window. Returns true if it was for the panel; otherwise it goes to
    /// whatever has the focus.
    bool handleKey(const QKeyEvent &event) { return m_keys.handle(event); }

    /// Requests that a field, or with `None` no field, gets the focus. For a field, the panel is shown
    /// without the guide.
    Q_INVOKABLE void requestField(vesk::PanelKeyboard::Field field);
    /// Turns the composer's draft into a note, or into a prompt on the prompts tab; a blank draft is left
    /// unchanged.
    void commitDraft();
    /// Asks the user whether Vesk may read other applications.
    Q_INVOKABLE void askForTrust();
    /// Switches to the next or the previous tab, wrapping around.
    Q_INVOKABLE void changeTab(bool isForwards);

    /// Must be called before each show: clears the search, updates the day and the times, and shows the guide
    /// to a new user.
    void prepareToShow();
    /// Must be called when the user has hidden the panel: closes any note, clears the selection and takes the
    /// focus from all fields.
    void becomeHidden();
    /// Must be called when the panel has disappeared because the user turned to another application. What was
    /// open or selected, and the field that had the focus, are restored later; what was typed is saved.
    void becomeInactive();

    [[nodiscard]] NoteListModel *notes() { return &m_notes; }
    [[nodiscard]] PromptListModel *prompts() { return &m_prompts; }
    [[nodiscard]] CardActions *cards() { return &m_cards; }
    [[nodiscard]] CardSelection *selection() { return &m_selection; }
    [[nodiscard]] OpenNote *openNote() { return &m_openNote; }
    [[nodiscard]] PanelKeyboard *keyboard() { return &m_keyboard; }
    [[nodiscard]] PanelMenu *menu() { return &m_menu; }
    [[nodiscard]] Guide *guide() { return &m_guide; }
    [[nodiscard]] PanelHeight *height() { return &m_height; }
    [[nodiscard]] NoteEditorController *editor() { return &m_editor; }
    [[nodiscard]] Tab tab() const { return m_tab; }
    /// Closes the open note if this changes the tab.
    void setTab(Tab tab);
    [[nodiscard]] const QString &search() const { return m_search; }
    void setSearch(const QString &search);
    [[nodiscard]] QString query() const;
    [[nodiscard]] const QString &draft() const { return m_draft; }
    void setDraft(const QString &draft);
    [[nodiscard]] bool isTrusted() const;
    [[nodiscard]] QString problem() const;
    /// Why there is no recent copy of the store; empty if there is one. Any trouble with the store comes
    /// first.
    void setCopyProblem(const QString &problem);

Q_SIGNALS:
    void tabChanged();
    void searchChanged();
    void draftChanged();
    void isTrustedChanged();
    void problemChanged();
    /// A field was requested, so the panel must be shown with the focus. The receiver shows it before this
    /// returns.
    void showRequested();

private:
    void setDraftProblem(const QString &problem);
    void searchCurrentList();

    NotesStore &m_store;
    Clock &m_clock;
    Accessibility &m_accessibility;
    NoteListModel m_notes;
    PromptListModel m_prompts;
    PanelKeyboard m_keyboard;
    CardSelection m_selection;
    NoteEditorController m_editor;
    OpenNote m_openNote;
    CardActions m_cards;
    PanelKeys m_keys;
    PanelMenu m_menu;
    Guide m_guide;
    PanelHeight m_height;
    Tab m_tab = Tab::Notes;
    QString m_search;
    QString m_draft;
    QString m_copyProblem;
    /// Why the draft was not kept; empty once it is another one.
    QString m_draftProblem;
};

} // namespace vesk
