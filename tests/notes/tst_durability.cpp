// SPDX-License-Identifier: MIT
#include "faultydisk.h"
#include "storefixture.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

using Contents = QMap<RecordId, QString>;

/// Moves the journal into the file every few pages, so that a short run covers that too.
int checkpointOften(sqlite3 *connection, char ** /*error*/, const sqlite3_api_routines * /*routines*/)
{
    constexpr int kPages = 8;
    return sqlite3_wal_autocheckpoint(connection, kPages);
}

/// VESK_FAULT_SEEDS requests a longer run: each seed is a different history of changes.
unsigned seeds()
{
    const int asked = qEnvironmentVariableIntValue("VESK_FAULT_SEEDS");
    return asked > 0 ? unsigned(asked) : 1;
}

} // namespace

/// Whether the store keeps its promises on a disk that fails at any step, temporarily or permanently.
class TestDurability : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsWhatItConfirmed_data();
    void keepsWhatItConfirmed();

private:
    [[nodiscard]] Contents contents() const;
    /// Makes one change of a random kind.
    void change(std::mt19937 &random);
    /// Records what a save has confirmed, or may have written without confirming it.
    void save();
    void close();
    /// Opens, changes, saves and closes a store; the disk may fail at any step.
    void play(unsigned seed);
    /// Plays with the faults, and checks what is there after the crash.
    void play(unsigned seed, const FaultyDisk::Plan &plan, FaultyDisk::Loss loss, qint64 &steps);

    /// Must outlive every connection to it.
    std::unique_ptr<FaultyDisk> m_disk;
    std::unique_ptr<StoreFixture> m_fixture;
    /// How often an opening failed because the disk was full.
    int m_fullDisks = 0;
    /// The possible contents of the file after a crash: what was last confirmed, and what was tried since.
    QList<Contents> m_possible;
};

void TestDurability::initTestCase()
{
    // The disk's contents are simulated here, so there is no need for thousands of real syncs.
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    // Every fault would be logged.
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what SQLite asks for.
    QCOMPARE(sqlite3_auto_extension(reinterpret_cast<void (*)()>(checkpointOften)), SQLITE_OK);
}

Contents TestDurability::contents() const
{
    // Every field, so that no change of any of them is missed.
    const auto line = [](const auto &...fields) { return (... + (fields + u'|')); };
    const auto number = [](Date date) { return QString::number(date.time_since_epoch().count()); };
    const auto optional = [](const std::optional<QString> &text) { return text ? u'=' + *text : QString(); };
    Contents result;
    for (qsizetype i = 0; i < m_fixture->store->notes().count(); ++i) {
        const Note &note = m_fixture->store->notes().at(i);
        result.insert(note.id(), line(u"note"_s, note.text(), number(note.createdAt()),
                                      number(note.updatedAt()), QString::number(int(note.isPinned())),
                                      optional(note.sourceApp()), optional(note.sourceBundleID()),
                                      optional(note.sourceTitle()), optional(note.sourceURL())));
    }
    for (qsizetype i = 0; i < m_fixture->store->prompts().count(); ++i) {
        const Prompt &prompt = m_fixture->store->prompts().at(i);
        result.insert(prompt.id(),
                      line(u"prompt"_s, prompt.text(), number(prompt.createdAt()),
                           QString::number(int(prompt.isDone())), QString::number(int(prompt.isCaptured()))));
    }
    return result;
}

void TestDurability::change(std::mt19937 &random)
{
    NotesStore &store = *m_fixture->store;
    const auto any = [&](auto &query) -> auto & {
        return query.at(qsizetype(random() % size_t(query.count())));
    };
    // Some texts need several pages.
    const QString text = QString::number(random()).repeated(random() % 4 == 0 ? 1500 : 3);
    const unsigned choice = store.notes().isEmpty() ? 0 : random() % 9;
    m_fixture->clock.advance(1ms);
    if (choice < 2)
        m_fixture->addNote(text);
    else if (choice == 2)
        store.insert(std::make_unique<Note>(
            m_fixture->clock, text,
            CaptureSource{.app = u"App"_s, .bundleID = {}, .title = text.left(5), .url = QString()}));
    else if (choice == 3)
        any(store.notes()).setText(text);
    else if (choice == 4)
        store.remove(any(store.notes()));
    else if (choice == 5)
        any(store.notes()).setPinned(random() % 2 == 0);
    else if (choice == 6 || store.prompts().isEmpty())
        store.insert(std::make_unique<Prompt>(m_fixture->clock, text, Prompt::Origin::Captured));
    else if (choice == 7)
        any(store.prompts()).toggleDone();
    else
        store.remove(any(store.prompts()));
}

void TestDurability::save()
{
    const bool isSaved = m_fixture->store->save();
    QCOMPARE(m_fixture->store->hasPendingChanges(), !isSaved);
    if (isSaved)
        m_possible.clear();
    m_possible.append(contents());
}

void TestDurability::close()
{
    if (!m_fixture->store)
        return;
    // Closing tries once more.
    m_possible.append(contents());
    m_fixture->close();
}

void TestDurability::play(unsigned seed)
{
    std::mt19937 random(seed);
    for (int session = 0; session < 2; ++session) {
        // If the disk only fails for a while, the second attempt to open succeeds, or a later one.
        for (int attempt = 0; !m_fixture->open() && attempt < 13; ++attempt) {
            // Nobody must be advised to give up a sound file.
            QVERIFY2(m_fixture->fault == StoreFault::Other, qPrintable(m_fixture->error));
            if (m_fixture->error.contains(u"disk is full"_s))
                ++m_fullDisks;
        }
        if (!m_fixture->store)
            return;
        // What is there now is durable, whichever of the possible states it is.
        QVERIFY(m_possible.contains(contents()));
        m_possible = {contents()};
        for (int saving = 0; saving < 4; ++saving) {
            for (unsigned i = 0; i <= random() % 3; ++i)
                change(random);
            save();
        }
        close();
    }
}

void TestDurability::play(unsigned seed, const FaultyDisk::Plan &plan, FaultyDisk::Loss loss, qint64 &steps)
{
    m_fixture.reset();
    m_disk.reset();
    m_disk = std::make_unique<FaultyDisk>();
    m_fixture = std::make_unique<StoreFixture>();
    m_possible = {Contents()};
    std::mt19937 random(seed);
    FaultyDisk &disk = *m_disk;
    disk.follow(plan);
    play(seed);
    steps = disk.steps();
    if (QTest::currentTestFailed())
        return;
    if (plan.count < FaultyDisk::kForever) {
        // The disk works again, and nothing that was ever tried is missing.
        disk.follow({});
        QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
        change(random);
        save();
        QVERIFY(!m_fixture->store->hasPendingChanges());
        QCOMPARE(m_possible.size(), 1);
    }
    disk.die();
    m_fixture->close();
    disk.cutPower(QFileInfo(m_fixture->path()).path(), loss, random);

    disk.follow({});
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    QVERIFY(m_possible.contains(contents()));
    change(random);
    save();
    QVERIFY(!m_fixture->store->hasPendingChanges());
    QCOMPARE(m_fixture->integrity(), u"ok"_s);
    QVERIFY(m_fixture->open());
    QCOMPARE(contents(), m_possible.constLast());
}

void TestDurability::keepsWhatItConfirmed_data()
{
    QTest::addColumn<FaultyDisk::Plan>("plan");
    QTest::addColumn<FaultyDisk::Loss>("loss");
    using Plan = FaultyDisk::Plan;
    using Loss = FaultyDisk::Loss;
    QTest::newRow("crash") << Plan{} << Loss::None;
    QTest::newRow("crash in the middle of a write") << Plan{.tears = true} << Loss::None;
    QTest::newRow("power cut") << Plan{} << Loss::All;
    QTest::newRow("power cut, some of it written") << Plan{.tears = true} << Loss::Random;
    QTest::newRow("one step fails") << Plan{.count = 1} << Loss::All;
    QTest::newRow("one write fails half way") << Plan{.count = 1, .tears = true} << Loss::Random;
    QTest::newRow("disk full for a while") << Plan{.count = 12, .code = SQLITE_FULL} << Loss::All;
    QTest::newRow("one step fails, be it a reading") << Plan{.count = 1, .readsToo = true} << Loss::All;
    QTest::newRow("disk full, half of it fits")
        << Plan{.count = 12, .code = SQLITE_FULL, .tears = true} << Loss::Random;
}

void TestDurability::keepsWhatItConfirmed()
{
    QFETCH(FaultyDisk::Plan, plan);
    QFETCH(const FaultyDisk::Loss, loss);
    int runs = 0;
    m_fullDisks = 0;
    for (unsigned seed = 1; seed <= seeds(); ++seed) {
        qint64 steps = 0;
        // Until the fault would come after everything is done.
        for (plan.first = 0; plan.first == 0 || plan.first <= steps; ++plan.first, ++runs) {
            play(seed, plan, loss, steps);
            if (QTest::currentTestFailed()) {
                qInfo("That was seed %u, step %lld.", seed, plan.first);
                return;
            }
        }
    }
    QCOMPARE(m_fullDisks > 0, plan.code == SQLITE_FULL);
    qInfo("%d crashes and faults.", runs);
}

QTEST_GUILESS_MAIN(TestDurability)
#include "tst_durability.moc"
