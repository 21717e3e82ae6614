// SPDX-License-Identifier: MIT
#include "panel/panelmodel.h"

#include "notes/notesstore.h"
#include "panel/searchtext.h"
#include "platform/accessibility.h"

using namespace std::chrono_literals;

namespace vesk {

namespace {

/// So much of what is typed into a note can be lost with the power.
constexpr auto kSavesWithin = 2s;

QString textOf(const std::optional<RecordId> &id)
{
    return id ? id->toString(QUuid::WithoutBraces) : QString();
}

} // namespace

PanelModel::PanelModel(NotesStore &store, Clock &clock, Defaults &defaults, Application &application,
                       Accessibility &accessibility, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_clock(clock)
    , m_application(application)
    , m_accessibility(accessibility)
    , m_notes(store, clock, defaults)
    , m_prompts(store, defaults)
    , m_cards(*this, store)
    , m_menu(this)
    , m_guide(accessibility, defaults)
{
    connect(&m_menu, &PanelMenu::guideRequested, &m_guide, &Guide::show);
    connect(&accessibility, &Accessibility::trustChanged, this, &PanelModel::isTrustedChanged);
    connect(&store.notes(), &LiveQueryBase::removed, this, [this](qsizetype, const RecordId &id) {
        if (m_expanded == id)
            setExpanded(std::nullopt);
    });
}

void PanelModel::open(const Note &note)
{
    if (m_expanded == note.id())
        return;
    const RecordId id = note.id();
    collapse();
    if (m_activeField != Field::None)
        requestField(Field::None);
    setExpanded(id);
    setFocused(id);
}

void PanelModel::collapse()
{
    if (!m_expanded)
        return;
    Note *note = m_store.findNote(*m_expanded);
    setExpanded(std::nullopt);
    if (note && note->isBlank()) {
        m_store.remove(*note);
        setFocused(std::nullopt);
    }
    // A save that fails is made up for by the store; here and below, what was done is in the list.
    m_store.save();
    if (m_isEditing && m_activeField == Field::None)
        requestField(Field::None);
}

void PanelModel::setExpanded(const std::optional<RecordId> &id)
{
    if (m_expanded == id)
        return;
    m_expanded = id;
    m_notes.setOpenNote(id);
    Q_EMIT expandedChanged();
}

void PanelModel::edit(Note &note, const QString &text)
{
    if (note.text() == text)
        return;
    note.setText(text);
    if (!m_savesSoon)
        saveSoon(this, &m_clock);
}

QCoro::Task<> PanelModel::saveSoon(QPointer<PanelModel> self, Clock *clock)
{
    self->m_savesSoon = true;
    co_await clock->sleep(kSavesWithin);
    if (!self)
        co_return;
    self->m_savesSoon = false;
    self->m_store.save();
}

void PanelModel::togglePinned(Note &note)
{
    note.setPinned(!note.isPinned());
    m_store.save();
}

void PanelModel::toggleItem(Note &note, int line)
{
    note.toggleItem(line);
    m_store.save();
}

void PanelModel::toggleDone(Prompt &prompt)
{
    prompt.toggleDone();
    m_store.save();
}

void PanelModel::deleteNote(Note &note)
{
    moveFocusAway(note.id());
    if (m_expanded == note.id())
        setExpanded(std::nullopt);
    m_store.remove(note);
    m_store.save();
}

void PanelModel::deletePrompt(Prompt &prompt)
{
    moveFocusAway(prompt.id());
    m_store.remove(prompt);
    m_store.save();
}

void PanelModel::clearDonePrompts()
{
    const QList<Prompt *> done = m_store.donePrompts();
    for (Prompt *prompt : done)
        m_store.remove(*prompt);
    m_store.save();
}

void PanelModel::commitDraft()
{
    const QString text = markup::trimmed(m_draft);
    if (text.isEmpty())
        return;
    if (m_tab == Tab::Prompts) {
        m_store.insert(std::make_unique<Prompt>(m_clock, text, Prompt::Origin::FollowUp));
        setSearch({});
    } else {
        const Note &note = m_store.insert(std::make_unique<Note>(m_clock, markup::expandMarkup(text)));
        setSearch({});
        // The new note is to be seen.
        if (m_tab == Tab::Checklists && !note.progress())
            setTab(Tab::Notes);
    }
    m_store.save();
    setDraft({});
}

void PanelModel::requestField(Field field)
{
    if (field != Field::None) {
        Q_EMIT showRequested();
        // What the user types next is meant for the field.
        m_guide.setAside();
    }
    if (m_requestedField != field) {
        m_requestedField = field;
        Q_EMIT requestedFieldChanged();
    }
    ++m_fieldRequest;
    Q_EMIT fieldRequestChanged();
}

void PanelModel::askForTrust()
{
    m_accessibility.askForTrust();
}

bool PanelModel::isTrusted() const
{
    return m_accessibility.isProcessTrusted();
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
    collapse();
    setFocused(std::nullopt);
    requestField(Field::None);
}

SectionedListModel &PanelModel::currentList()
{
    if (m_tab == Tab::Prompts)
        return m_prompts;
    return m_notes;
}

void PanelModel::moveFocus(int delta)
{
    const SectionedListModel &list = currentList();
    const int count = list.visibleCount();
    if (count == 0)
        return;
    const std::optional<int> current = m_focused ? list.visibleIndex(*m_focused) : std::nullopt;
    const int start = delta > 0 ? 0 : count - 1;
    const int target = current ? std::clamp(*current + delta, 0, count - 1) : start;
    setFocused(list.visibleAt(target));
}

void PanelModel::selectSomething()
{
    if (!m_focused || !currentList().visibleIndex(*m_focused))
        moveFocus(1);
}

void PanelModel::moveFocusAway(const RecordId &id)
{
    const SectionedListModel &list = currentList();
    const std::optional<int> index = m_focused == id ? list.visibleIndex(id) : std::nullopt;
    if (!index)
        return;
    const int last = list.visibleCount() - 1;
    if (last == 0)
        setFocused(std::nullopt);
    else
        setFocused(list.visibleAt(*index < last ? *index + 1 : last - 1));
}

void PanelModel::setTab(Tab tab)
{
    if (m_tab == tab)
        return;
    m_tab = tab;
    if (tab != Tab::Prompts) {
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
    // The list that is not shown is searched when its turn comes.
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
}

QString PanelModel::expandedId() const
{
    return textOf(m_expanded);
}

QString PanelModel::focusedId() const
{
    return textOf(m_focused);
}

void PanelModel::setFocused(const std::optional<RecordId> &id)
{
    if (m_focused == id)
        return;
    m_focused = id;
    Q_EMIT focusedChanged();
}

void PanelModel::setActiveField(Field field)
{
    if (m_activeField == field)
        return;
    m_activeField = field;
    Q_EMIT activeFieldChanged();
    if (field != Field::None)
        collapse();
}

} // namespace vesk
