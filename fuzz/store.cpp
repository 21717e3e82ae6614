// SPDX-License-Identifier: MIT
#include "notes/notesreader.h"
#include "storefolder.h"

using namespace vesk;

/// Arbitrary bytes as the store and as its journal.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const StoreFolder folder;
    MemoryClock clock;
    folder.clear();
    if (size < 2)
        return 0;
    // The first two bytes are the length of the journal.
    const QByteArray bytes = bytesOf(data + 2, size - 2);
    const qsizetype journalSize = std::min<qsizetype>(bytes.size(), data[0] * 256 + data[1]);
    const QByteArray store = bytes.chopped(journalSize);
    const QByteArray journal = bytes.last(journalSize);
    StoreFolder::write(folder.path(), store);
    if (!journal.isEmpty())
        StoreFolder::write(folder.journalPath(), journal);

    static_cast<void>(readNotes(folder.path()));
    check(StoreFolder::read(folder.path()) == store);
    NotesStore::OpenResult opened = NotesStore::open(folder.path(), clock);
    if (opened.store) {
        useStore(folder.path(), std::move(opened), clock);
    } else {
        check(!opened.error.isEmpty());
        // A file that is refused must be unchanged.
        check(StoreFolder::read(folder.path()) == store);
        check(StoreFolder::read(folder.journalPath()) == journal);
    }
    return 0;
}
