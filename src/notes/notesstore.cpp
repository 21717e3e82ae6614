// SPDX-License-Identifier: MIT
#include "notes/notesstore.h"

#include "notes/database.h"
#include "notes/rescuedstores.h"
#include "notes/saveproblem.h"
#include "platform/logging.h"

#include <QDebug>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

/// How long after a failed save the store tries again. The delay doubles with each attempt, up to the
/// longest.
constexpr std::chrono::milliseconds kFirstRetryDelay = 5s;
constexpr std::chrono::milliseconds kLongestRetryDelay = 60s;

} // namespace

QString NotesStore::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Vesk/Notes.store"_s;
}

NotesStore::OpenResult NotesStore::open(const QString &path, Clock &clock, Use use,
                                        std::chrono::milliseconds patience)
{
    const auto lockUse = use == Use::Session ? StoreLock::Use::Session : StoreLock::Use::Command;
    Database::OpenResult opened = Database::open(path, lockUse, patience);
    if (!opened.database)
        return {.store = nullptr, .error = opened.error.text, .fault = opened.error.fault};
    std::unique_ptr<NotesStore> store(new NotesStore(std::move(opened.database), clock));
    qCDebug(notesLog) << "store opened:" << opened.notes.size() << "notes," << opened.prompts.size()
                      << "prompts";
    store->load(std::move(opened.notes), std::move(opened.prompts));
    if (const QString rescued = rescuedstores::latest(path); !rescued.isEmpty())
        store->m_incident =
            tr("Notes that Vesk kept when the notes file was replaced are in “%1”. To get them "
               "back, quit Vesk and put that file in the place of “%2”.")
                .arg(rescued, path);
    return {.store = std::move(store)};
}

NotesStore::NotesStore(std::unique_ptr<Database> database, Clock &clock)
    : m_database(std::move(database))
    , m_clock(clock)
{
}

NotesStore::~NotesStore()
{
    // Nobody is left to report a failure to; it has been logged.
    if (hasPendingChanges() || m_database->isLost())
        static_cast<void>(write());
}

void NotesStore::load(std::vector<Note::Fields> notes, std::vector<Prompt::Fields> prompts)
{
    std::vector<Note *> allNotes;
    allNotes.reserve(notes.size());
    m_heldNotes.reserve(notes.size());
    for (Note::Fields &fields : notes) {
        auto note = std::make_unique<Note>(m_clock, std::move(fields));
        allNotes.push_back(&hold(m_heldNotes, std::move(note), &Note::updatedAt));
    }
    m_notes.load(allNotes);

    std::vector<Prompt *> allPrompts;
    allPrompts.reserve(prompts.size());
    for (Prompt::Fields &fields : prompts) {
        auto prompt = std::make_unique<Prompt>(std::move(fields));
        allPrompts.push_back(&hold(m_heldPrompts, std::move(prompt), &Prompt::createdAt));
    }
    m_prompts.load(allPrompts);
}

Note &NotesStore::insert(std::unique_ptr<Note> note)
{
    Note &inserted = hold(m_heldNotes, std::move(note), &Note::updatedAt);
    m_pending.addInserted(RecordKind::Note, inserted.id());
    m_notes.insert(inserted);
    return inserted;
}

Prompt &NotesStore::insert(std::unique_ptr<Prompt> prompt)
{
    Prompt &inserted = hold(m_heldPrompts, std::move(prompt), &Prompt::createdAt);
    m_pending.addInserted(RecordKind::Prompt, inserted.id());
    m_prompts.insert(inserted);
    return inserted;
}

void NotesStore::remove(Note &note)
{
    const Held<Note> taken = take(m_heldNotes, note);
    m_pending.addRemoved(RecordKind::Note, note.id());
    m_notes.remove(note, taken.date);
}

void NotesStore::remove(Prompt &prompt)
{
    const Held<Prompt> taken = take(m_heldPrompts, prompt);
    m_pending.addRemoved(RecordKind::Prompt, prompt.id());
    m_prompts.remove(prompt, taken.date);
}

template <typename Record>
Record &NotesStore::hold(Shelf<Record> &shelf, std::unique_ptr<Record> record, Date (Record::*key)() const)
{
    Q_ASSERT(!m_heldNotes.contains(record->id()) && !m_heldPrompts.contains(record->id()));
    Record &held = *record;
    held.setObserver(this);
    shelf.emplace(held.id(), Held<Record>{.record = std::move(record), .date = (held.*key)()});
    return held;
}

template <typename Record>
NotesStore::Held<Record> NotesStore::take(Shelf<Record> &shelf, Record &record)
{
    auto node = shelf.extract(record.id());
    Q_ASSERT(!node.empty() && node.mapped().record.get() == &record);
    // Changes that listeners make to a record that is being removed no longer matter.
    record.setObserver(nullptr);
    return std::move(node.mapped());
}

void NotesStore::noteChanged(Note &note)
{
    m_pending.addChanged(RecordKind::Note, note.id());
    const Date oldDate = std::exchange(m_heldNotes.at(note.id()).date, note.updatedAt());
    m_notes.update(note, oldDate);
}

void NotesStore::promptChanged(Prompt &prompt)
{
    m_pending.addChanged(RecordKind::Prompt, prompt.id());
    m_prompts.update(prompt, prompt.createdAt());
}

bool NotesStore::save()
{
    const bool isSaved = (!hasPendingChanges() && !m_database->isLost()) || write();
    if (hasPendingChanges()) {
        startRetrying();
    } else {
        m_isRetrying = false;
        // A record that could not be written may have been removed since.
        setProblem({});
    }
    Q_EMIT saveTried();
    return isSaved;
}

bool NotesStore::hasPendingChanges() const
{
    return !m_pending.isEmpty();
}

QStringList NotesStore::unwrittenTexts() const
{
    QStringList texts;
    for (const auto &[number, change] : m_pending.changes()) {
        if (const Note *note = findNote(change.id))
            texts.append(note->text());
        else if (const Prompt *prompt = findPrompt(change.id))
            texts.append(prompt->text());
    }
    return texts;
}

bool NotesStore::write()
{
    if (m_database->isLost())
        return writeAnew();
    std::vector<Database::Change> changes;
    std::vector<quint64> numbers;
    for (const auto &[number, change] : m_pending.changes()) {
        numbers.push_back(number);
        if (const Note *note = findNote(change.id))
            changes.emplace_back(note);
        else if (const Prompt *prompt = findPrompt(change.id))
            changes.emplace_back(prompt);
        else
            changes.emplace_back(Database::Removal{.kind = change.kind, .id = change.id});
    }
    const Database::Written written = m_database->write(changes);
    qCDebug(notesLog) << changes.size() << "changes committed:" << written.isCommitted
                      << "refused:" << written.refused.size();
    bool isWritten = false;
    if (written.isCommitted) {
        QSet<quint64> refused;
        for (const size_t place : written.refused)
            refused.insert(numbers.at(place));
        isWritten = m_pending.settle(refused);
    } else {
        m_pending.setMaybeStored();
    }
    setProblem(written.trouble
                   ? describeSaveProblem(*written.trouble, static_cast<qsizetype>(written.refused.size()))
                   : QString());
    return isWritten;
}

bool NotesStore::writeAnew()
{
    std::vector<Database::Change> records;
    records.reserve(m_heldNotes.size() + m_heldPrompts.size());
    for (const auto &[id, held] : m_heldNotes) {
        records.emplace_back(held.record.get());
        // Until there is a new file, none of the records may count as stored.
        m_pending.addChanged(RecordKind::Note, id);
    }
    for (const auto &[id, held] : m_heldPrompts) {
        records.emplace_back(held.record.get());
        m_pending.addChanged(RecordKind::Prompt, id);
    }
    Database::Anew anew = m_database->writeAnew(records);
    if (!anew.database) {
        qWarning() << "The notes could not be saved:" << qPrintable(anew.trouble.detail);
        setProblem(describeSaveProblem(anew.trouble, 0));
        return false;
    }
    qWarning() << qPrintable(anew.incident);
    m_database = std::move(anew.database);
    m_pending.clear();
    m_problem.clear();
    m_incident = anew.incident;
    Q_EMIT problemChanged();
    return true;
}

void NotesStore::setProblem(const QString &problem)
{
    if (m_problem == problem)
        return;
    m_problem = problem;
    Q_EMIT problemChanged();
}

void NotesStore::startRetrying()
{
    if (m_isRetrying)
        return;
    m_isRetrying = true;
    ++m_retryRound;
    retry(this, &m_clock, m_retryRound);
}

QCoro::Task<> NotesStore::retry(QPointer<NotesStore> store, Clock *clock, quint64 round)
{
    std::chrono::milliseconds delay = kFirstRetryDelay;
    while (true) {
        co_await clock->sleep(delay);
        // A successful save from elsewhere ends the round; a later failure starts another one.
        if (!store || !store->m_isRetrying || store->m_retryRound != round)
            co_return;
        // The pending changes show whether this succeeded.
        static_cast<void>(store->save());
        if (!store || !store->hasPendingChanges())
            co_return;
        delay = std::min(2 * delay, kLongestRetryDelay);
    }
}

Note *NotesStore::findNote(const RecordId &id) const
{
    const auto held = m_heldNotes.find(id);
    return held == m_heldNotes.end() ? nullptr : held->second.record.get();
}

Prompt *NotesStore::findPrompt(const RecordId &id) const
{
    const auto held = m_heldPrompts.find(id);
    return held == m_heldPrompts.end() ? nullptr : held->second.record.get();
}

QList<Prompt *> NotesStore::donePrompts() const
{
    QList<Prompt *> result;
    for (const auto &[id, held] : m_heldPrompts) {
        if (held.record->isDone())
            result.append(held.record.get());
    }
    return result;
}

} // namespace vesk
