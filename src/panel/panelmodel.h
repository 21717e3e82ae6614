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

/// The state behind the panel. The views show it and forward to it; it knows no window. Records are
/// kept by identity only and looked up each time.
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
    /// A handle on the text of the open note.
    Q_PROPERTY(vesk::NoteEditorController *editor READ editor CONSTANT)
    Q_PROPERTY(vesk::PanelModel::Tab tab READ tab WRITE setTab NOTIFY tabChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    /// The search text as it is compared and highlighted.
    Q_PROPERTY(QString query READ query NOTIFY searchChanged)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    /// Whether Vesk may read the text selected in other applications.
    Q_PROPERTY(bool isTrusted READ isTrusted NOTIFY isTrustedChanged)
    /// Why something is not saved, or not copied, in one sentence; empty if all is.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    enum class Tab {
        Notes,
        Checklists,
        Prompts,
    };
    Q_ENUM(Tab)

    using Field = PanelKeyboard::Field;

    /// All of these have to outlive the model.
    PanelModel(NotesStore &store, Clock &clock, Defaults &defaults, Application &application,
               Accessibility &accessibility);

    /// Takes a key press of the panel's window. True if it was for the panel; else it goes on to
    /// whatever has the keyboard.
    bool handleKey(const QKeyEvent &event) { return m_keys.handle(event); }

    /// Asks for a field, or with `None` for neither, to have the keyboard; the panel comes up for a field,
    /// without the guide.
    Q_INVOKABLE void requestField(vesk::PanelKeyboard::Field field);
    /// Turns the draft of the composer into a note, or on their tab into a prompt; a blank one stays as
    /// it is.
    void commitDraft();
    /// Has the user asked whether Vesk may read other applications.
    Q_INVOKABLE void askForTrust();
    /// Goes to the next tab, or to the one before, and round at the end.
    Q_INVOKABLE void changeTab(bool isForwards);

    /// To be called before each show: nothing is searched for, the day and times are of now, and a new
    /// user is shown the guide.
    void prepareToShow();
    /// To be called when the user has hidden the panel: no note is open, nothing is selected and no field
    /// has the keyboard.
    void becomeHidden();
    /// To be called when the panel has gone because the user turned to another application. What was open
    /// or selected, and the field that was written in, are found again; what was typed is saved.
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
    /// Closes the open note if the tab is another one.
    void setTab(Tab tab);
    [[nodiscard]] const QString &search() const { return m_search; }
    void setSearch(const QString &search);
    [[nodiscard]] QString query() const;
    [[nodiscard]] const QString &draft() const { return m_draft; }
    void setDraft(const QString &draft);
    [[nodiscard]] bool isTrusted() const;
    [[nodiscard]] QString problem() const;
    /// Why there is no recent copy of the store; empty if there is one. Any trouble with the store comes first.
    void setCopyProblem(const QString &problem);

Q_SIGNALS:
    void tabChanged();
    void searchChanged();
    void draftChanged();
    void isTrustedChanged();
    void problemChanged();
    /// A field was asked for, so the panel has to be up and have the keyboard. The receiver shows it
    /// before it returns.
    void showRequested();

private:
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
};

} // namespace vesk
