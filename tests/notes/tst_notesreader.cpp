// SPDX-License-Identifier: MIT
#include "notes/notesreader.h"
#include "privatemounts.h"
#include "storefixture.h"

#include <QScopeGuard>
#include <QTest>

#include <sys/mount.h>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

bool isMountingAllowed = false;

enum class Writer {
    Closed,
    Running,
    /// Ended without moving its journal into the file; the journal's index is gone, as after a reboot.
    Crashed,
};

enum class Disk {
    Ordinary,
    Full,
    ReadOnly,
};

QStringList textsOf(const NotesReading &reading)
{
    QStringList texts;
    for (const Note::Fields &note : reading.notes)
        texts.append(note.text.toString());
    texts.sort();
    return texts;
}

} // namespace

/// Reads notes alongside a writer, and where nothing can be written.
class TestNotesReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhereNothingCanBeWritten_data();
    void readsWhereNothingCanBeWritten();
};

void TestNotesReader::readsWhereNothingCanBeWritten_data()
{
    QTest::addColumn<Writer>("writer");
    QTest::addColumn<Disk>("disk");
    QTest::newRow("ordinary disk") << Writer::Closed << Disk::Ordinary;
    QTest::newRow("full disk") << Writer::Closed << Disk::Full;
    QTest::newRow("full disk while Vesk is running") << Writer::Running << Disk::Full;
    QTest::newRow("full disk after a crash") << Writer::Crashed << Disk::Full;
    QTest::newRow("read-only disk") << Writer::Closed << Disk::ReadOnly;
}

void TestNotesReader::readsWhereNothingCanBeWritten()
{
    QFETCH(Writer, writer);
    QFETCH(Disk, disk);
    if (!isMountingAllowed)
        QSKIP("This system does not let the test mount a file system.");
    StoreFixture fixture;
    const QByteArray folderName = QFile::encodeName(fixture.folder.path());
    QVERIFY(mountTmpfs(folderName.constData(), 1U << 20));
    const auto unmount = qScopeGuard([&] {
        fixture.close();
        ::umount2(folderName.constData(), MNT_DETACH);
    });
    QVERIFY2(fixture.open(), qPrintable(fixture.error));
    fixture.addNote(u"a"_s);
    QVERIFY(fixture.store->save());
    fixture.close();
    QVERIFY(fixture.open());
    fixture.addNote(u"b"_s);
    QVERIFY(fixture.store->save());
    const QString journal = fixture.folder.filePath(u"journal"_s);
    if (writer == Writer::Crashed) {
        QVERIFY(QFile::copy(fixture.path(), fixture.folder.filePath(u"file"_s)));
        QVERIFY(QFile::copy(fixture.journalPath(), journal));
    }
    if (writer != Writer::Running)
        fixture.close();
    if (writer == Writer::Crashed) {
        QVERIFY(QFile::remove(fixture.path()));
        QVERIFY(QFile::rename(fixture.folder.filePath(u"file"_s), fixture.path()));
        QVERIFY(QFile::rename(journal, fixture.journalPath()));
    }
    if (disk == Disk::ReadOnly) {
        QCOMPARE(::mount("tmpfs", folderName.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr), 0);
    } else if (disk == Disk::Full) {
        QFile filler(fixture.folder.filePath(u"filler"_s));
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) {
        }
    }
    const QDir folder = QFileInfo(fixture.path()).dir();
    const QStringList files = folder.entryList(QDir::Files);
    const NotesReading reading = readNotes(fixture.path());
    QVERIFY2(reading.error.isEmpty(), qPrintable(reading.error.text));
    QCOMPARE(textsOf(reading), (QStringList{u"a"_s, u"b"_s}));
    // Like SQLite, an attempt on a full disk leaves empty companion files.
    if (disk != Disk::Full)
        QCOMPARE(folder.entryList(QDir::Files), files);
}

int main(int argc, char **argv)
{
    isMountingAllowed = enterPrivateMounts();
    QCoreApplication application(argc, argv);
    TestNotesReader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_notesreader.moc"
