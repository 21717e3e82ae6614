// SPDX-License-Identifier: MIT
#include "panel/notelistmodel.h"

#include "notes/notesstore.h"
#include "panel/carddata.h"
#include "panel/searchtext.h"
#include "platform/defaults.h"

#include <QDateTime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kTimesStayFresh = 30s;

Date dateOf(const QDateTime &time)
{
    return Date{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
}

QString defaultsKey(const NoteSections::Section &section)
{
    return u"collapsed."_s + section.key;
}

} // namespace

NoteListModel::NoteListModel(NotesStore &store, Clock &clock, Defaults &defaults, QObject *parent)
    : QAbstractListModel(parent)
    , m_store(store)
    , m_clock(clock)
    , m_defaults(defaults)
{
    readDay();
    const Grouped all = grouped();
    for (const Kind kind : kNoteSections) {
        NoteSections::Section &section = m_sections.section(kind);
        section.isCollapsed = defaults.boolForKey(defaultsKey(section));
        section.entries = all.at(static_cast<size_t>(kind));
        section.hasHeader = !section.entries.empty();
    }

    LiveQuery<Note> &notes = store.notes();
    connect(&notes, &LiveQueryBase::inserted, this,
            [this](qsizetype index) { noteInserted(m_store.notes().at(index)); });
    connect(&notes, &LiveQueryBase::removed, this,
            [this](qsizetype, const RecordId &id) { noteRemoved(id); });
    connect(&notes, &LiveQueryBase::moved, this,
            [this](qsizetype, qsizetype to) { noteChanged(m_store.notes().at(to)); });
    connect(&notes, &LiveQueryBase::changed, this,
            [this](qsizetype index) { noteChanged(m_store.notes().at(index)); });
    connect(this, &QAbstractItemModel::rowsInserted, this, &NoteListModel::isEmptyChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &NoteListModel::isEmptyChanged);
}

int NoteListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_sections.rowCount();
}

QHash<int, QByteArray> NoteListModel::roleNames() const
{
    return {{IsHeaderRole, "isHeader"},
            {SectionTitleRole, "sectionTitle"},
            {SectionCountRole, "sectionCount"},
            {CollapsedRole, "isCollapsed"},
            {NoteIdRole, "noteId"},
            {TitleRole, "title"},
            {PreviewRole, "preview"},
            {ItemTextsRole, "itemTexts"},
            {ItemsDoneRole, "itemsDone"},
            {ItemLinesRole, "itemLines"},
            {FurtherItemsRole, "furtherItems"},
            {DoneRole, "done"},
            {TotalRole, "total"},
            {TimeRole, "time"},
            {SourceRole, "source"},
            {SourceBundleRole, "sourceBundle"},
            {PinnedRole, "isPinned"}};
}

QVariant NoteListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const NoteSections::RowPlace place = m_sections.place(index.row());
    const NoteSections::Section &section = m_sections.section(place.section);
    const bool isHeader = !place.card;
    switch (role) {
    case IsHeaderRole:
        return isHeader;
    case SectionTitleRole:
        return isHeader ? section.title : QString();
    case SectionCountRole:
        return isHeader ? static_cast<int>(section.entries.size()) : 0;
    case CollapsedRole:
        return isHeader && section.isCollapsed;
    default:
        break;
    }

    const Note *note =
        place.card ? &m_sections.note({.section = place.section, .card = *place.card}) : nullptr;
    switch (role) {
    case NoteIdRole:
        return note ? note->id().toString(QUuid::WithoutBraces) : QString();
    case TitleRole:
        return note ? carddata::title(*note) : QString();
    case PreviewRole:
        return note ? carddata::preview(*note) : QString();
    case ItemTextsRole:
        return note ? carddata::itemTexts(*note) : QStringList();
    case ItemsDoneRole:
        return QVariant::fromValue(note ? carddata::itemsDone(*note) : QList<bool>());
    case ItemLinesRole:
        return QVariant::fromValue(note ? carddata::itemLines(*note) : QList<int>());
    case FurtherItemsRole:
        return note ? carddata::furtherItems(*note) : 0;
    case DoneRole:
        return note ? static_cast<int>(note->progress().value_or(Progress{}).done) : 0;
    case TotalRole:
        return note ? static_cast<int>(note->progress().value_or(Progress{}).total) : 0;
    case TimeRole:
        return note ? m_relativeTime.text(note->updatedAt(), m_clock.now()) : QString();
    case SourceRole:
        return note ? note->sourceApp().value_or(QString()) : QString();
    case SourceBundleRole:
        return note ? note->sourceBundleID().value_or(QString()) : QString();
    case PinnedRole:
        return note ? note->isPinned() : false;
    default:
        return {};
    }
}

void NoteListModel::toggleSection(int row)
{
    if (row < 0 || row >= m_sections.rowCount())
        return;
    const Kind kind = m_sections.place(row).section;
    NoteSections::Section &section = m_sections.section(kind);
    const int first = m_sections.cardRow(kind, 0);
    const int last = first + static_cast<int>(section.entries.size()) - 1;
    setSweeping(false);
    if (section.isCollapsed) {
        beginInsertRows({}, first, last);
        section.isCollapsed = false;
        endInsertRows();
    } else {
        beginRemoveRows({}, first, last);
        section.isCollapsed = true;
        endRemoveRows();
    }
    m_defaults.setBool(section.isCollapsed, defaultsKey(section));
    headerChanged(kind);
}

int NoteListModel::rowOf(const QString &noteId) const
{
    const std::optional<NoteSections::CardPlace> found = m_sections.find(RecordId::fromString(noteId));
    if (!found || m_sections.section(found->section).isCollapsed)
        return -1;
    return m_sections.cardRow(found->section, found->card);
}

void NoteListModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    // What does not contain a text does not contain a longer one either.
    const bool narrows = query.contains(m_query);
    m_query = query;
    if (!narrows) {
        regroup(grouped());
        return;
    }
    Grouped wanted;
    for (const Kind kind : kNoteSections) {
        for (const Entry &entry : m_sections.section(kind).entries) {
            if (matches(*entry.note))
                wanted.at(static_cast<size_t>(kind)).push_back(entry);
        }
    }
    regroup(wanted);
}

void NoteListModel::setShown(bool isShown)
{
    if (m_isShown == isShown)
        return;
    m_isShown = isShown;
    ++m_shows;
    if (!isShown)
        return;
    refreshTimes();
    refreshWhileShown(this, &m_clock, m_shows);
}

QCoro::Task<> NoteListModel::refreshWhileShown(QPointer<NoteListModel> self, Clock *clock, quint64 show)
{
    while (true) {
        co_await clock->sleep(kTimesStayFresh);
        if (!self || !self->m_isShown || self->m_shows != show)
            co_return;
        self->refreshTimes();
    }
}

const RecordId &NoteListModel::visibleAt(int index) const
{
    return m_sections.visibleAt(index).id();
}

bool NoteListModel::isStoreEmpty() const
{
    return m_store.notes().isEmpty();
}

bool NoteListModel::matches(const Note &note) const
{
    if (searchtext::contains(note.text(), m_query))
        return true;
    const std::optional<QString> &source = note.sourceApp();
    return source && searchtext::contains(*source, m_query);
}

NoteListModel::Kind NoteListModel::kindOf(const Note &note) const
{
    if (note.isPinned())
        return Kind::Pinned;
    return note.updatedAt() >= m_dayStart && note.updatedAt() < m_dayEnd ? Kind::Today : Kind::Earlier;
}

NoteListModel::Grouped NoteListModel::grouped() const
{
    Grouped wanted;
    const LiveQuery<Note> &notes = m_store.notes();
    for (qsizetype i = 0; i < notes.count(); ++i) {
        Note &note = notes.at(i);
        if (matches(note))
            wanted.at(static_cast<size_t>(kindOf(note))).push_back({.date = note.updatedAt(), .note = &note});
    }
    return wanted;
}

bool NoteListModel::readDay()
{
    const auto now = std::chrono::floor<std::chrono::milliseconds>(m_clock.now()).time_since_epoch();
    const QDate today = QDateTime::fromMSecsSinceEpoch(now.count()).date();
    const Date start = dateOf(today.startOfDay());
    if (start == m_dayStart)
        return false;
    m_dayStart = start;
    m_dayEnd = dateOf(today.addDays(1).startOfDay());
    return true;
}

void NoteListModel::refreshTimes()
{
    if (readDay())
        regroup(grouped());
    if (const int rows = m_sections.rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0), index(rows - 1), {TimeRole});
}

void NoteListModel::noteInserted(Note &note)
{
    if (m_store.notes().count() == 1)
        Q_EMIT isStoreEmptyChanged();
    setSweeping(false);
    if (matches(note))
        place(note);
}

void NoteListModel::noteRemoved(const RecordId &id)
{
    setSweeping(false);
    if (const std::optional<NoteSections::CardPlace> found = m_sections.find(id))
        take(*found);
    if (m_store.notes().isEmpty())
        Q_EMIT isStoreEmptyChanged();
}

void NoteListModel::noteChanged(Note &note)
{
    setSweeping(false);
    const std::optional<NoteSections::CardPlace> found = m_sections.find(note.id());
    const bool isWanted = matches(note);
    if (found && isWanted)
        moveTo(*found, kindOf(note), note.updatedAt());
    else if (found)
        take(*found);
    else if (isWanted)
        place(note);
}

} // namespace vesk
