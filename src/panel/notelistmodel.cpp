// SPDX-License-Identifier: MIT
#include "panel/notelistmodel.h"

#include "notes/notesstore.h"
#include "panel/searchtext.h"

#include <QCoreApplication>
#include <QDateTime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

// The sections in display order.
constexpr size_t kPinned = 0;
constexpr size_t kToday = 1;
constexpr size_t kEarlier = 2;
constexpr size_t kSectionCount = 3;

constexpr std::chrono::milliseconds kTimesStayFresh = 30s;
/// How many notes are folded at a time, so that the event loop can run in between.
constexpr qsizetype kFoldedAtATime = 250;
/// If more notes than this move, they are rearranged at once instead.
constexpr size_t kMostMoves = 24;

Date dateOf(const QDateTime &time)
{
    return Date{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
}

/// Most notes contain no checkbox, which is found out much faster this way than by reading their lines.
bool isChecklist(const QString &text)
{
    return (text.contains(markup::kUnticked.front()) || text.contains(markup::kTicked.front()))
           && markup::progress(text);
}

std::vector<ListSections::Section> allSections()
{
    return {{.key = u"pinned"_s, .title = NoteListModel::tr("Pinned")},
            {.key = u"today"_s, .title = NoteListModel::tr("Today")},
            {.key = u"earlier"_s, .title = NoteListModel::tr("Earlier")}};
}

} // namespace

NoteListModel::NoteListModel(NotesStore &store, Clock &clock, Defaults &defaults, QObject *parent)
    : SectionedListModel(allSections(), defaults, parent)
    , m_store(store)
    , m_clock(clock)
{
    LiveQuery<Note> &notes = store.notes();
    for (qsizetype i = 0; i < notes.count(); ++i) {
        if (isChecklist(notes.at(i).text()))
            m_checklists.insert(notes.at(i).id());
    }
    readDay();
    load(grouped());

    connect(&notes, &LiveQueryBase::inserted, this,
            [this](qsizetype index) { noteInserted(m_store.notes().at(index)); });
    connect(&notes, &LiveQueryBase::removed, this,
            [this](qsizetype, const RecordId &id) { noteRemoved(id); });
    connect(&notes, &LiveQueryBase::moved, this,
            [this](qsizetype, qsizetype to) { noteChanged(m_store.notes().at(to)); });
    connect(&notes, &LiveQueryBase::changed, this,
            [this](qsizetype index) { noteChanged(m_store.notes().at(index)); });
    m_foldingAhead.setInterval(0);
    connect(&m_foldingAhead, &QTimer::timeout, this, &NoteListModel::foldAhead);
}

void NoteListModel::setScope(Scope scope)
{
    if (m_scope == scope)
        return;
    m_scope = scope;
    regroup(grouped());
}

void NoteListModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    // A text that does not contain a query does not contain a longer one either. Compare the folded forms: an
    // accent typed after its letter changes the letter.
    QByteArray folded = searchtext::folded(query);
    const bool narrows = folded.contains(m_foldedQuery);
    m_query = query;
    m_foldedQuery = std::move(folded);
    const Grouped found = narrows ? narrowed() : grouped();
    if (m_openNote)
        regroup(found, Regroup::AtOnce);
    else
        exchange(found);
    Q_EMIT searched();
}

void NoteListModel::setShown(bool isShown)
{
    if (m_isShown == isShown)
        return;
    m_isShown = isShown;
    ++m_shows;
    if (!isShown) {
        m_foldingAhead.stop();
        m_folded.forgetAll();
        return;
    }
    m_foldedAhead = 0;
    m_foldingAhead.start();
    refresh();
    refreshWhileShown(this, &m_clock, m_shows);
}

QCoro::Task<> NoteListModel::refreshWhileShown(QPointer<NoteListModel> self, Clock *clock, quint64 show)
{
    while (true) {
        const Date now = clock->now();
        auto wait = kTimesStayFresh;
        if (self->m_dayEnd > now)
            wait = std::min(wait, std::chrono::ceil<std::chrono::milliseconds>(self->m_dayEnd - now));
        co_await clock->sleep(wait);
        if (!self || !self->m_isShown || self->m_shows != show)
            co_return;
        self->refresh();
    }
}

void NoteListModel::setOpenNote(const std::optional<RecordId> &id)
{
    if (m_openNote == id)
        return;
    if (const std::optional<RecordId> closed = std::exchange(m_openNote, id))
        thaw(*closed);
    if (!id)
        return;
    const LiveQuery<Note> &notes = m_store.notes();
    m_frozenDates.reserve(static_cast<size_t>(notes.count()));
    for (qsizetype i = 0; i < notes.count(); ++i)
        m_frozenDates.emplace(notes.at(i).id(), notes.at(i).updatedAt());
}

void NoteListModel::thaw(const RecordId &closed)
{
    m_frozenDates = {};
    std::vector<const Note *> moved;
    for (size_t i = 0; i < sections().count(); ++i) {
        for (const Entry &entry : sections().section(i).entries) {
            const Note *note = m_store.findNote(entry.id);
            if (note && (entry.id == closed || note->updatedAt() != entry.date))
                moved.push_back(note);
        }
    }
    if (moved.size() > kMostMoves) {
        regroup(grouped());
        return;
    }
    for (const Note *note : moved)
        follow(*note);
}

Date NoteListModel::sortDate(const Note &note) const
{
    const auto frozen = m_frozenDates.find(note.id());
    return frozen == m_frozenDates.end() ? note.updatedAt() : frozen->second;
}

int NoteListModel::noteCount() const
{
    return static_cast<int>(m_store.notes().count());
}

bool NoteListModel::matches(const Note &note)
{
    return isInScope(note.id()) && m_folded.contains(note, m_foldedQuery);
}

bool NoteListModel::matches(const RecordId &id)
{
    if (!isInScope(id))
        return false;
    if (const std::optional<bool> known = m_folded.contains(id, m_foldedQuery))
        return *known;
    const Note *note = m_store.findNote(id);
    return note && m_folded.contains(*note, m_foldedQuery);
}

bool NoteListModel::isInScope(const RecordId &id) const
{
    return m_scope == Scope::AllNotes || m_checklists.contains(id);
}

size_t NoteListModel::sectionOf(const Note &note) const
{
    if (note.isPinned())
        return kPinned;
    const Date date = sortDate(note);
    return date >= m_dayStart && date < m_dayEnd ? kToday : kEarlier;
}

NoteListModel::Entry NoteListModel::entryOf(const Note &note) const
{
    return {.date = sortDate(note), .id = note.id()};
}

NoteListModel::Grouped NoteListModel::grouped()
{
    Grouped wanted(kSectionCount);
    const LiveQuery<Note> &notes = m_store.notes();
    for (qsizetype i = 0; i < notes.count(); ++i) {
        const Note &note = notes.at(i);
        if (matches(note))
            wanted.at(sectionOf(note)).push_back(entryOf(note));
    }
    if (!m_frozenDates.empty()) {
        for (ListSections::Entries &entries : wanted)
            std::ranges::sort(entries, ListSections::before);
    }
    return wanted;
}

NoteListModel::Grouped NoteListModel::narrowed()
{
    Grouped wanted(kSectionCount);
    for (size_t i = 0; i < kSectionCount; ++i) {
        for (const Entry &entry : sections().section(i).entries) {
            if (matches(entry.id))
                wanted.at(i).push_back(entry);
        }
    }
    return wanted;
}

bool NoteListModel::readDay()
{
    // Ask for the calendar each time, because the user may have changed time zones.
    const auto now = std::chrono::floor<std::chrono::milliseconds>(m_clock.now()).time_since_epoch();
    const QDate today = QDateTime::fromMSecsSinceEpoch(now.count()).date();
    const Date start = dateOf(today.startOfDay());
    const Date end = dateOf(today.addDays(1).startOfDay());
    if (start == m_dayStart && end == m_dayEnd)
        return false;
    m_dayStart = start;
    m_dayEnd = end;
    return true;
}

void NoteListModel::refresh()
{
    if (readDay())
        regroup(grouped());
    rowsChanged({TimeRole, SpokenRole});
}

void NoteListModel::foldAhead()
{
    const LiveQuery<Note> &notes = m_store.notes();
    const qsizetype end = std::min(notes.count(), m_foldedAhead + kFoldedAtATime);
    for (; m_foldedAhead < end; ++m_foldedAhead)
        m_folded.prepare(notes.at(m_foldedAhead));
    if (m_foldedAhead >= notes.count())
        m_foldingAhead.stop();
}

void NoteListModel::noteInserted(const Note &note)
{
    if (isChecklist(note.text()))
        m_checklists.insert(note.id());
    Q_EMIT countsChanged();
    setSweeping(false);
    if (matches(note))
        place(sectionOf(note), entryOf(note));
}

void NoteListModel::noteRemoved(const RecordId &id)
{
    m_checklists.erase(id);
    m_folded.forget(id);
    setSweeping(false);
    if (const std::optional<CardPlace> found = sections().find(id))
        take(*found);
    Q_EMIT countsChanged();
}

void NoteListModel::noteChanged(const Note &note)
{
    m_folded.forget(note.id());
    const size_t before = m_checklists.size();
    if (isChecklist(note.text()))
        m_checklists.insert(note.id());
    else
        m_checklists.erase(note.id());
    if (m_checklists.size() != before)
        Q_EMIT countsChanged();
    follow(note);
}

void NoteListModel::follow(const Note &note)
{
    setSweeping(false);
    const std::optional<CardPlace> found = sections().find(note.id());
    const bool isOpen = m_openNote == note.id();
    const bool isWanted = matches(note) || (isOpen && found);
    const size_t section = sectionOf(note);
    if (found && isWanted) {
        // An open note only shows its editor; the other roles are read again when it is closed.
        moveTo(*found, section, sortDate(note), isOpen ? QList<int>{TextRole, PinnedRole} : QList<int>{});
    } else if (found) {
        take(*found);
    } else if (isWanted) {
        place(section, entryOf(note));
    }
}

} // namespace vesk
