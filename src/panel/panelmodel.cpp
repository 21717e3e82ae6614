// SPDX-License-Identifier: MIT
#include "panel/panelmodel.h"

#include "notes/promptrules.h"
#include "panel/searchtext.h"
#include "platform/accessibility.h"

#include <array>

namespace vesk {

PanelModel::PanelModel(NotesStore &store, Clock &clock, Defaults &defaults, Application &application,
                       Accessibility &accessibility)
    : m_store(store)
    , m_clock(clock)
    , m_accessibility(accessibility)
    , m_notes(store, clock, defaults)
    , m_prompts(store, defaults)
    , m_selection(m_notes)
    , m_openNote({.store = store,
                  .notes = m_notes,
                  .keyboard = m_keyboard,
                  .selection = m_selection,
                  .editor = m_editor})
    , m_cards(store, clock, m_openNote, m_selection)
    , m_keys(*this, application)
    , m_menu(this)
    , m_guide(accessibility, defaults)
    , m_height(defaults)
{
    connect(&m_menu, &PanelMenu::guideRequested, &m_guide, &Guide::show);
    connect(&accessibility, &Accessibility::trustChanged, this, &PanelModel::isTrustedChanged);
    connect(&store, &NotesStore::problemChanged, this, &PanelModel::problemChanged);
}

void PanelModel::commitDraft()
{
    using Outcome = noterules::Outcome;
    const bool isPrompt = m_tab == Tab::Prompts;
    const noterules::Kept kept = isPrompt ? promptrules::addTyped(m_store, m_clock, m_draft)
                                          : noterules::addTyped(m_store, m_clock, m_draft);
    if (kept.outcome == Outcome::TooLong)
        setDraftProblem(tr("This text is too long for a note."));
    // What could not be written stays in the store, which tries again and has the panel say so.
    if (kept.outcome != Outcome::Added)
        return;
    setSearch({});
    // The new note is to be seen.
    if (m_tab == Tab::Checklists && !m_store.notes().first()->progress())
        setTab(Tab::Notes);
    setDraft({});
}

void PanelModel::requestField(Field field)
{
    if (field != Field::None) {
        Q_EMIT showRequested();
        // What the user types next is meant for the field.
        m_guide.setAside();
    }
    m_keyboard.request(field);
}

void PanelModel::askForTrust()
{
    m_accessibility.askForTrust();
}

bool PanelModel::isTrusted() const
{
    return m_accessibility.isProcessTrusted();
}

QString PanelModel::problem() const
{
    for (const QString &each : {m_draftProblem, m_store.problem(), m_store.incident()}) {
        if (!each.isEmpty())
            return each;
    }
    return m_copyProblem;
}

void PanelModel::setCopyProblem(const QString &problem)
{
    if (m_copyProblem == problem)
        return;
    m_copyProblem = problem;
    Q_EMIT problemChanged();
}

void PanelModel::prepareToShow()
{
    setSearch({});
    m_notes.setShown(true);
    m_guide.greet();
}

void PanelModel::becomeHidden()
{
    m_notes.setShown(false);
    m_openNote.close();
    m_selection.select(std::nullopt);
    m_keyboard.request(Field::None);
}

void PanelModel::becomeInactive()
{
    m_notes.setShown(false);
    m_openNote.closeIfBlank();
    // The store keeps what could not be written, tries again, and the panel reports it.
    static_cast<void>(m_store.save());
}

void PanelModel::changeTab(bool isForwards)
{
    constexpr std::array kOrder{Tab::Notes, Tab::Checklists, Tab::Prompts};
    const size_t step = isForwards ? 1 : kOrder.size() - 1;
    setTab(kOrder.at((static_cast<size_t>(m_tab) + step) % kOrder.size()));
}

void PanelModel::setTab(Tab tab)
{
    if (m_tab == tab)
        return;
    m_openNote.close();
    m_tab = tab;
    if (tab == Tab::Prompts) {
        m_selection.setList(m_prompts);
    } else {
        m_selection.setList(m_notes);
        m_notes.setScope(tab == Tab::Checklists ? NoteListModel::Scope::Checklists
                                                : NoteListModel::Scope::AllNotes);
    }
    searchCurrentList();
    Q_EMIT tabChanged();
}

void PanelModel::setSearch(const QString &search)
{
    if (m_search == search)
        return;
    m_search = search;
    searchCurrentList();
    Q_EMIT searchChanged();
}

void PanelModel::searchCurrentList()
{
    // The hidden list is searched when it is shown.
    if (m_tab == Tab::Prompts)
        m_prompts.setQuery(query());
    else
        m_notes.setQuery(query());
}

QString PanelModel::query() const
{
    return searchtext::query(m_search);
}

void PanelModel::setDraft(const QString &draft)
{
    if (m_draft == draft)
        return;
    m_draft = draft;
    Q_EMIT draftChanged();
    setDraftProblem({});
}

void PanelModel::setDraftProblem(const QString &problem)
{
    if (m_draftProblem == problem)
        return;
    m_draftProblem = problem;
    Q_EMIT problemChanged();
}

} // namespace vesk
