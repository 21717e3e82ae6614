// SPDX-License-Identifier: MIT
#include "privatemounts.h"
#include "storefixture.h"
#include "virtualdesktop/files.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>
#include <functional>
#include <sys/mount.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

using Loss = std::function<void(const StoreFixture &)>;

QString folderOf(const StoreFixture &fixture)
{
    return QFileInfo(fixture.path()).path();
}

/// Creates a store that holds one note.
void putForeignStore(const QString &path, const QString &text)
{
    MemoryClock clock;
    const auto opened = NotesStore::open(path, clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    opened.store->insert(std::make_unique<Note>(clock, text));
    QVERIFY(opened.store->save());
}

/// The texts in the store at `path`, as the next Vesk reads them.
QStringList textsIn(const QString &path, QString *incident = nullptr)
{
    MemoryClock clock;
    const auto opened = NotesStore::open(path, clock);
    if (!opened.store)
        return {opened.error};
    QStringList texts;
    for (qsizetype i = 0; i < opened.store->notes().count(); ++i)
        texts.append(opened.store->notes().at(i).text());
    texts.sort();
    if (incident)
        *incident = opened.store->incident();
    return texts;
}

bool isMountingAllowed = false;

} // namespace

/// The store's file or its folder disappears while Vesk is running.
class TestLostStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isWrittenAnew_data();
    void isWrittenAnew();
    void isWrittenAnewByClosing();
    void foreignFileIsLeftAlone_data();
    void foreignFileIsLeftAlone();
    void unmountedDiskIsWaitedFor();
    void fullDiskGetsNoHalfStore();
    void anotherProcessThatTookThePlaceKeepsIt();

private:
    std::unique_ptr<StoreFixture> m_fixture;
};

void TestLostStore::init()
{
    m_fixture = std::make_unique<StoreFixture>();
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    m_fixture->addNote(u"a"_s);
    m_fixture->store->insert(std::make_unique<Prompt>(m_fixture->clock, u"p"_s, Prompt::Origin::FollowUp));
    QVERIFY(m_fixture->store->save());
}

void TestLostStore::isWrittenAnew_data()
{
    QTest::addColumn<Loss>("lose");
    QTest::addColumn<QString>("moved");
    const auto row = [](const char *name, const Loss &lose, const QString &moved = {}) {
        QTest::newRow(name) << lose << moved;
    };
    row("file deleted", [](const StoreFixture &fixture) { QVERIFY(QFile::remove(fixture.path())); });
    row("folder deleted",
        [](const StoreFixture &fixture) { QVERIFY(QDir(folderOf(fixture)).removeRecursively()); });
    row(
        "file moved",
        [](const StoreFixture &fixture) {
            QVERIFY(QFile::rename(fixture.path(), fixture.folder.filePath(u"kept"_s)));
        },
        u"kept"_s);
    row(
        "folder moved",
        [](const StoreFixture &fixture) {
            QVERIFY(QFile::rename(folderOf(fixture), fixture.folder.filePath(u"old"_s)));
        },
        u"old/Notes.store"_s);
}

void TestLostStore::isWrittenAnew()
{
    QFETCH(Loss, lose);
    QFETCH(QString, moved);
    lose(*m_fixture);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"while Vesk was running"_s));
    m_fixture->addNote(u"b"_s);
    QVERIFY2(m_fixture->store->save(), qPrintable(m_fixture->store->problem()));
    QStringList rows = m_fixture->rows();
    rows.sort();
    QCOMPARE(rows, (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(m_fixture->rows("Prompt"), QStringList{u"p"_s});
    const QString incident = m_fixture->store->incident();
    QVERIFY2(incident.contains(u"while Vesk was running"_s), qPrintable(incident));
    if (!moved.isEmpty())
        QVERIFY2(incident.contains(m_fixture->folder.filePath(moved)), qPrintable(incident));

    // It continues with the new file, which only one process can have open, as before.
    QCOMPARE(NotesStore::open(m_fixture->path(), m_fixture->clock).fault, StoreFault::HeldElsewhere);
    m_fixture->addNote(u"c"_s);
    QVERIFY(m_fixture->store->save());
    m_fixture->close();
    QCOMPARE(textsIn(m_fixture->path()), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(m_fixture->integrity(), u"ok"_s);
    // The old file is complete without the journal that it left behind.
    if (!moved.isEmpty())
        QCOMPARE(textsIn(m_fixture->folder.filePath(moved)), QStringList{u"a"_s});
}

/// Nothing has changed since the file disappeared.
void TestLostStore::isWrittenAnewByClosing()
{
    QVERIFY(QFile::remove(m_fixture->path()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"deleted"_s));
    m_fixture->close();
    QCOMPARE(textsIn(m_fixture->path()), QStringList{u"a"_s});
}

void TestLostStore::foreignFileIsLeftAlone_data()
{
    QTest::addColumn<bool>("isStore");
    QTest::addColumn<bool>("isOldOneKept");
    QTest::addColumn<bool>("isCopiedOver");
    QTest::newRow("a store in place of the deleted one") << true << false << false;
    QTest::newRow("a store in place of the moved one") << true << true << false;
    QTest::newRow("another file") << false << false << false;
    QTest::newRow("a store copied over") << true << false << true;
    QTest::newRow("another file copied over") << false << false << true;
}

void TestLostStore::foreignFileIsLeftAlone()
{
    QFETCH(bool, isStore);
    QFETCH(bool, isOldOneKept);
    QFETCH(bool, isCopiedOver);
    const QString foreign = m_fixture->folder.filePath(u"other.store"_s);
    if (isStore)
        putForeignStore(foreign, u"foreign"_s);
    else
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), foreign));
    const QByteArray bytes = contentsOf(foreign);
    if (isCopiedOver) {
        // Into the same file, as cp does.
        QVERIFY(writeFile(m_fixture->path(), bytes));
        QVERIFY(QFile::remove(foreign));
    } else {
        QVERIFY(isOldOneKept ? QFile::rename(m_fixture->path(), m_fixture->folder.filePath(u"kept"_s))
                             : QFile::remove(m_fixture->path()));
        QVERIFY(QFile::rename(foreign, m_fixture->path()));
    }

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"another file"_s, QRegularExpression::CaseInsensitiveOption));
    m_fixture->addNote(u"b"_s);
    QVERIFY2(m_fixture->store->save(), qPrintable(m_fixture->store->problem()));
    const QString rescued = folderOf(*m_fixture) + u"/Notes.rescued.store"_s;
    const QString incident = m_fixture->store->incident();
    QVERIFY2(incident.contains(rescued), qPrintable(incident));
    m_fixture->addNote(u"c"_s);
    QVERIFY(m_fixture->store->save());
    m_fixture->close();
    QCOMPARE(contentsOf(m_fixture->path()), bytes);
    // Neither store has lost anything, and the next start reports that there are two.
    QString next;
    if (isStore) {
        QCOMPARE(textsIn(m_fixture->path(), &next), QStringList{u"foreign"_s});
        QVERIFY2(next.contains(rescued), qPrintable(next));
    }
    QCOMPARE(textsIn(rescued), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    if (isOldOneKept)
        QCOMPARE(textsIn(m_fixture->folder.filePath(u"kept"_s)), QStringList{u"a"_s});
}

/// A store on the disk below would be hidden once the other disk is mounted again.
void TestLostStore::unmountedDiskIsWaitedFor()
{
    if (!isMountingAllowed)
        QSKIP("This system does not let the test mount a file system.");
    m_fixture->close();
    QVERIFY(QDir(folderOf(*m_fixture)).removeRecursively());
    const QByteArray disk = QFile::encodeName(m_fixture->folder.path());
    QVERIFY(mountTmpfs(disk.constData(), 1U << 22));
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    m_fixture->addNote(u"a"_s);
    QVERIFY(m_fixture->store->save());

    QCOMPARE(::umount2(disk.constData(), MNT_DETACH), 0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"could not be saved"_s));
    m_fixture->addNote(u"b"_s);
    QVERIFY(!m_fixture->store->save());
    QVERIFY2(m_fixture->store->problem().contains(u"cannot be reached"_s),
             qPrintable(m_fixture->store->problem()));
    QVERIFY(QDir(m_fixture->folder.path()).isEmpty());
    QCOMPARE(m_fixture->store->unwrittenTexts(), QStringList{u"b"_s});
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"could not be saved"_s));
    m_fixture->close();
    QVERIFY(QDir(m_fixture->folder.path()).isEmpty());
}

void TestLostStore::fullDiskGetsNoHalfStore()
{
    if (!isMountingAllowed)
        QSKIP("This system does not let the test mount a file system.");
    m_fixture->close();
    QVERIFY(QDir(folderOf(*m_fixture)).removeRecursively());
    const QByteArray disk = QFile::encodeName(m_fixture->folder.path());
    QVERIFY(mountTmpfs(disk.constData(), 1U << 20));
    const auto unmount = qScopeGuard([&disk] { ::umount2(disk.constData(), MNT_DETACH); });
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    m_fixture->addNote(u"a"_s);
    QVERIFY(m_fixture->store->save());
    QFile filler(m_fixture->folder.filePath(u"filler"_s));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    QVERIFY(QFile::remove(m_fixture->path()));
    const QStringList files = QDir(folderOf(*m_fixture)).entryList(QDir::Files);
    QVERIFY(!files.contains(u"Notes.store"_s));

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"could not be saved"_s));
    m_fixture->addNote(u"b "_s.repeated(40'000));
    QVERIFY(!m_fixture->store->save());
    QVERIFY2(m_fixture->store->problem().contains(u"full"_s), qPrintable(m_fixture->store->problem()));
    QCOMPARE(QDir(folderOf(*m_fixture)).entryList(QDir::Files), files);
    // All of it is offered at exit, because it is in no file.
    QCOMPARE(m_fixture->store->unwrittenTexts().size(), 2);
    QVERIFY(filler.remove());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"deleted"_s));
    m_fixture->clock.advance(5s);
    QVERIFY(!m_fixture->store->hasPendingChanges());
    QCOMPARE(m_fixture->rows().size(), 2);
    m_fixture->close();
}

/// It found no store, and is the only one that writes there from now on.
void TestLostStore::anotherProcessThatTookThePlaceKeepsIt()
{
    QVERIFY(QDir(folderOf(*m_fixture)).removeRecursively());
    MemoryClock clock;
    auto other = NotesStore::open(m_fixture->path(), clock);
    QVERIFY2(other.store, qPrintable(other.error));
    m_fixture->addNote(u"b"_s);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"could not be saved"_s));
    QVERIFY(!m_fixture->store->save());
    QVERIFY2(m_fixture->store->problem().contains(u"another program"_s),
             qPrintable(m_fixture->store->problem()));
    other.store->insert(std::make_unique<Note>(clock, u"other"_s));
    QVERIFY(other.store->save());
    other.store.reset();
    QCOMPARE(textsIn(m_fixture->path()), QStringList{u"other"_s});
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"another file"_s, QRegularExpression::CaseInsensitiveOption));
    m_fixture->clock.advance(5s);
    QVERIFY(!m_fixture->store->hasPendingChanges());
    m_fixture->close();
    QCOMPARE(textsIn(folderOf(*m_fixture) + u"/Notes.rescued.store"_s), (QStringList{u"a"_s, u"b"_s}));
}

int main(int argc, char **argv)
{
    isMountingAllowed = enterPrivateMounts();
    QCoreApplication application(argc, argv);
    TestLostStore test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_loststore.moc"
