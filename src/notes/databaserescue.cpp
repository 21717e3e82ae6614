// SPDX-License-Identifier: MIT
// Moves the notes to a new file when a running Vesk loses its store.
#include "notes/database.h"
#include "notes/rescuedstores.h"

#include <QFile>

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace vesk {

using Finding = StorePlace::Finding;

bool Database::isLost() const
{
    const Finding finding = m_place.look();
    return finding != Finding::There && finding != Finding::Unreachable;
}

std::optional<StoreTrouble> Database::renewLock()
{
    if (m_lock->isInPlace())
        return std::nullopt;
    StoreLock::Result locked = StoreLock::acquire(m_lock->store(), m_lock->use(), {});
    if (locked.lock) {
        m_lock = std::move(locked.lock);
        return std::nullopt;
    }
    if (locked.error.fault == StoreFault::HeldElsewhere)
        return StoreTrouble{.kind = StoreTrouble::Kind::InUse, .detail = locked.error.text};
    return StoreTrouble::of(SQLITE_CANTOPEN, locked.error.text, 0, m_file.folder());
}

void Database::rememberFile()
{
    // Only a write-ahead log keeps everybody else from writing into the file, and a network file system may
    // report our own changes late.
    if (m_journal != storejournal::Kind::WriteAheadLog)
        return;
    m_place.remember();
    if (!m_journalPlace)
        m_journalPlace.emplace(StoreFile::journalOf(m_file.path()));
    m_journalPlace->remember();
}

std::optional<StoreTrouble> Database::emptyJournal(Finding finding)
{
    if (finding == Finding::Overwritten) {
        setCheckpointOnClose(false);
        // The journal may have been copied along with the other file, and then belongs to it.
        if (m_journalPlace && m_journalPlace->look() == Finding::There)
            static_cast<void>(QFile::resize(StoreFile::journalOf(m_file.path()), 0));
        return std::nullopt;
    }
    // Closing removes the journal by name, and another store may own that name by now.
    setCheckpointOnClose(false);
    try {
        // A journal left behind would be applied to the next file of this name. This also completes a file
        // that was moved away.
        SQLite::Statement checkpoint(m_connection, "PRAGMA wal_checkpoint(TRUNCATE)");
        if (checkpoint.executeStep() && checkpoint.getColumn(0).getInt() != 0)
            return StoreTrouble{.kind = StoreTrouble::Kind::InUse, .detail = u"the journal is being read"_s};
        // Ours, not somebody else's: the file may come back to its place.
        rememberFile();
    } catch (const SQLite::Exception &error) {
        return troubleOf(error);
    }
    return std::nullopt;
}

Database::Anew Database::writeAnew(const std::vector<Change> &records)
{
    const Finding finding = m_place.look();
    const bool isReplaced = finding == Finding::Replaced || finding == Finding::Overwritten;
    // Looked up before anything is changed.
    const QString movedTo = finding == Finding::MovedAway ? m_place.currentPath() : QString();
    const StoreFile file(isReplaced ? rescuedstores::nextPath(m_lock->store()) : m_file.path());
    file.makeFolder();
    Anew result;
    std::optional<StoreTrouble> trouble = renewLock();
    if (!trouble)
        trouble = emptyJournal(finding);
    if (!trouble)
        trouble = fill(file, records);
    if (trouble) {
        result.trouble = *trouble;
        return result;
    }
    // Two connections must not share a name that belongs to two different files.
    if (!isReplaced)
        StoreFile::removeCompanions(file.path());
    OpenResult opened;
    result.database = tryOpening(file, m_lock, m_journal, opened, result.trouble);
    if (isReplaced)
        result.incident =
            tr("Another file was put in the place of the notes file while Vesk was running. Vesk "
               "leaves it alone and keeps your notes in “%1” instead.")
                .arg(file.path());
    else if (!movedTo.isEmpty())
        result.incident =
            tr("The notes file was moved to “%1” while Vesk was running. Vesk has written all "
               "your notes to a new file in the old place, and the moved one no longer changes.")
                .arg(movedTo);
    else
        result.incident =
            tr("The notes file was deleted or moved away while Vesk was running. Vesk has written "
               "all your notes to a new file in its place.");
    return result;
}

std::optional<StoreTrouble> Database::fill(const StoreFile &file, const std::vector<Change> &records)
{
    int systemError = 0;
    try {
        systemError = file.createFilled([&records](SQLite::Database &connection) {
            NoteTable notes(connection);
            PromptTable prompts(connection);
            for (const Change &record : records) {
                if (const auto *note = std::get_if<const Note *>(&record))
                    notes.write(**note);
                else if (const auto *prompt = std::get_if<const Prompt *>(&record))
                    prompts.write(**prompt);
            }
        });
    } catch (const SQLite::Exception &error) {
        const StoreTrouble trouble =
            StoreTrouble::of(error.getExtendedErrorCode(), QString::fromUtf8(error.what()), 0, file.folder());
        // Here all records are written, so a single refused record counts as a general failure.
        if (trouble.kind == StoreTrouble::Kind::RecordRefused)
            return StoreTrouble{.kind = StoreTrouble::Kind::Lost, .detail = trouble.detail};
        return trouble;
    }
    if (systemError == 0)
        return std::nullopt;
    const StoreTrouble trouble =
        StoreTrouble::of(SQLITE_CANTOPEN, qt_error_string(systemError), systemError, file.folder());
    if (trouble.kind == StoreTrouble::Kind::Other)
        return StoreTrouble{.kind = StoreTrouble::Kind::Lost, .detail = qt_error_string(systemError)};
    return trouble;
}

} // namespace vesk
