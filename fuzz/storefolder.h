// SPDX-License-Identifier: MIT
#pragma once

#include "check.h"
#include "notes/notesstore.h"
#include "platform/memory/memoryclock.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <unistd.h>

namespace vesk {

/// A folder in memory that holds the store of each input.
class StoreFolder
{
public:
    StoreFolder()
        : m_folder(QStringLiteral("/dev/shm/vesk-fuzz-%1").arg(getpid()))
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
        clear();
    }
    ~StoreFolder() { QDir(m_folder).removeRecursively(); }
    Q_DISABLE_COPY_MOVE(StoreFolder)

    [[nodiscard]] QString path() const { return m_folder + QStringLiteral("/Notes.store"); }
    [[nodiscard]] QString journalPath() const { return path() + QStringLiteral("-wal"); }

    void clear() const
    {
        QDir folder(m_folder);
        folder.mkpath(m_folder);
        for (const QString &name : folder.entryList(QDir::Files))
            folder.remove(name);
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        check(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    [[nodiscard]] static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QString m_folder;
};

/// Changes and saves an open store, and checks that it reads back the same.
inline void useStore(const QString &path, NotesStore::OpenResult opened, Clock &clock)
{
    LiveQuery<Note> &notes = opened.store->notes();
    for (qsizetype i = 0; i < notes.count(); ++i) {
        check(i == 0 || notes.at(i - 1).updatedAt() >= notes.at(i).updatedAt());
        static_cast<void>(notes.at(i).title());
    }
    if (!notes.isEmpty())
        notes.at(notes.count() - 1).append(QStringLiteral("more"));
    const RecordId id = opened.store->insert(std::make_unique<Note>(clock, QStringLiteral("new"))).id();
    const qsizetype count = notes.count();
    const qsizetype promptCount = opened.store->prompts().count();
    const bool isSaved = opened.store->save();
    opened.store.reset();
    if (!isSaved)
        return;
    const NotesStore::OpenResult again = NotesStore::open(path, clock);
    check(again.store && again.store->findNote(id));
    check(again.store->notes().count() == count && again.store->prompts().count() == promptCount);
}

} // namespace vesk
