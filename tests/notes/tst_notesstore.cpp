// SPDX-License-Identifier: MIT
#include "storefixture.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

class TestNotesStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keepsEveryText_data();
    void keepsEveryText();
    void keepsEveryField();
    void keepsEveryFieldOfAChange();
    void writesWhatIsPendingAndNothingElse();
    void writesInTheOrderOfTheFirstChanges();
    void writesARecordThatCameBack();
    void agreesWithTheFileAfterRandomChanges();
    void orderFollowsWritingOnly();
    void reportsARemovalBeforeTheRecordIsDeleted();
    void retriesAtGrowingIntervals();
    void saveFromElsewhereEndsTheRetries();
    void mayDieWhileItWaitsForARetry();
    void closingTriesOnceMore();
    void refusedRecordDoesNotHoldUpOthers();

private:
    /// Makes every insertion of a note with this text fail, because of something in the file.
    void makeFail(const QString &text);
    void letSucceed();

    std::unique_ptr<StoreFixture> m_fixture;
};

void TestNotesStore::init()
{
    m_fixture = std::make_unique<StoreFixture>();
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
}

void TestNotesStore::cleanup()
{
    m_fixture->close();
    // Let sleeping coroutines notice that there is nothing to do.
    m_fixture->clock.advance(1h);
    QCOMPARE(m_fixture->clock.sleeperCount(), 0);
    QCOMPARE(m_fixture->integrity(), u"ok"_s);
}

void TestNotesStore::makeFail(const QString &text)
{
    m_fixture->outsider(SQLite::OPEN_READWRITE)
        .exec("CREATE TRIGGER refusal BEFORE INSERT ON Note WHEN new.text = '" + text.toStdString()
              + "' BEGIN SELECT RAISE(ABORT, 'refused'); END");
}

void TestNotesStore::letSucceed()
{
    m_fixture->outsider(SQLite::OPEN_READWRITE).exec("DROP TRIGGER refusal");
}

void TestNotesStore::keepsEveryText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");

    const auto row = [](const char *name, const QString &text) { QTest::newRow(name) << text << text; };
    row("empty", u""_s);
    row("NUL inside and at the ends", u"\0a\0\0b\0"_s);
    row("only NUL", u"\0"_s);
    row("U+FEFF at the start", u"\uFEFFa\uFEFF"_s);
    row("only U+FEFF, twice", u"\uFEFF\uFEFF"_s);
    row("non-characters", u"\uFFFE\uFFFF\uFDD0 \U0010FFFF"_s);
    row("astral and joined", u"👩‍👩‍👧‍👦 🇩🇪 𝄞"_s);
    row("composed and decomposed", u"\u00E9e\u0301\u212B"_s);
    row("line breaks of all kinds", u"\r\n\r\n\v\f\u0085\u2028\u2029"_s);
    row("quotes and SQL", u"'); DROP TABLE Note; --\"?1 %s"_s);
    row("control characters", u"\x01\x1B[31m\x7F"_s);
    row("5 MB in one line", QString(5'000'000, u'ä'));
    QTest::newRow("lone surrogates") << u"a"_s + QChar(0xDC00) + QChar(0xD800) << u"a\uFFFD\uFFFD"_s;
}

void TestNotesStore::keepsEveryText()
{
    QFETCH(QString, text);
    QFETCH(QString, stored);
    const CaptureSource source{.app = text, .bundleID = text, .title = text, .url = text};
    const RecordId note =
        m_fixture->store->insert(std::make_unique<Note>(m_fixture->clock, text, source)).id();
    const RecordId prompt =
        m_fixture->store->insert(std::make_unique<Prompt>(m_fixture->clock, text, Prompt::Origin::Captured))
            .id();
    QVERIFY(m_fixture->store->save());
    QVERIFY(m_fixture->open());
    const Note *found = m_fixture->store->findNote(note);
    QVERIFY(found);
    // QCOMPARE would print five megabytes.
    QVERIFY(found->text() == stored);
    QVERIFY(found->sourceApp() == stored && found->sourceBundleID() == stored);
    QVERIFY(found->sourceTitle() == stored && found->sourceURL() == stored);
    QVERIFY(m_fixture->store->findPrompt(prompt)->text() == stored);
}

void TestNotesStore::keepsEveryField()
{
    MemoryClock &clock = m_fixture->clock;
    clock.setNow(Date{-1us});
    const RecordId plain = m_fixture->addNote(u"plain"_s).id();
    const CaptureSource source{
        .app = u"Firefox"_s, .bundleID = {}, .title = QString(), .url = u"about:blank"_s};
    Note &captured = m_fixture->store->insert(std::make_unique<Note>(clock, u"captured"_s, source));
    const RecordId capturedId = captured.id();
    clock.setNow(Date{1'700'000'000'123'456us});
    captured.setText(u"edited"_s);
    captured.setPinned(true);
    QVERIFY(m_fixture->store->save());

    QVERIFY(m_fixture->open());
    const Note *first = m_fixture->store->findNote(plain);
    QVERIFY(!first->sourceApp() && !first->sourceBundleID() && !first->sourceTitle() && !first->sourceURL());
    QVERIFY(!first->isPinned() && first->createdAt() == Date{-1us} && first->updatedAt() == Date{-1us});
    const Note *second = m_fixture->store->findNote(capturedId);
    QCOMPARE(second->text(), u"edited"_s);
    QVERIFY(second->isPinned());
    QVERIFY(second->createdAt() == Date{-1us} && second->updatedAt() == Date{1'700'000'000'123'456us});
    // An empty title is not the same as none.
    QVERIFY(second->sourceTitle() == QString() && !second->sourceBundleID());
    QVERIFY(second->sourceApp() == u"Firefox"_s && second->sourceURL() == u"about:blank"_s);
}

/// An existing row is written by a different statement than a new one.
void TestNotesStore::keepsEveryFieldOfAChange()
{
    Note &note = m_fixture->addNote(u"☐ a"_s);
    Prompt &prompt = m_fixture->store->insert(
        std::make_unique<Prompt>(m_fixture->clock, u"p"_s, Prompt::Origin::Captured));
    const RecordId id = note.id();
    const RecordId promptId = prompt.id();
    QVERIFY(m_fixture->store->save());
    const auto reopened = [&]() -> const Note & {
        m_fixture->open();
        return *m_fixture->store->findNote(id);
    };
    note.setPinned(true);
    prompt.toggleDone();
    QVERIFY(m_fixture->store->save());
    QVERIFY(reopened().isPinned());
    QVERIFY(m_fixture->store->findPrompt(promptId)->isDone());
    m_fixture->store->findNote(id)->toggleItem(0);
    m_fixture->store->findPrompt(promptId)->toggleDone();
    QVERIFY(m_fixture->store->save());
    QCOMPARE(reopened().text(), u"☑ a"_s);
    QVERIFY(!m_fixture->store->findPrompt(promptId)->isDone());
    m_fixture->store->findNote(id)->setPinned(false);
    m_fixture->clock.advance(1s);
    m_fixture->store->findNote(id)->append(u"b"_s);
    const Date date = m_fixture->store->findNote(id)->updatedAt();
    QVERIFY(m_fixture->store->save());
    QVERIFY(!reopened().isPinned() && reopened().updatedAt() == date && reopened().createdAt() != date);
}

void TestNotesStore::writesWhatIsPendingAndNothingElse()
{
    Note &note = m_fixture->addNote(u"a"_s);
    QVERIFY(m_fixture->rows().isEmpty());
    QVERIFY(m_fixture->store->save());
    QCOMPARE(m_fixture->rows(), QStringList{u"a"_s});

    // Only pending changes are written: a row changed from outside stays as it is.
    m_fixture->outsider(SQLite::OPEN_READWRITE).exec("UPDATE Note SET text = 'outside'");
    QVERIFY(!m_fixture->store->hasPendingChanges());
    QVERIFY(m_fixture->store->save());
    note.toggleItem(0);
    note.setPinned(false);
    QVERIFY(!m_fixture->store->hasPendingChanges());
    QVERIFY(m_fixture->store->save());
    QCOMPARE(m_fixture->rows(), QStringList{u"outside"_s});

    // A note that is added and removed between two saves leaves nothing to do.
    m_fixture->store->remove(m_fixture->addNote(u"b"_s));
    QVERIFY(!m_fixture->store->hasPendingChanges());

    m_fixture->store->remove(note);
    QVERIFY(m_fixture->store->save());
    QVERIFY(m_fixture->rows().isEmpty());
}

void TestNotesStore::writesInTheOrderOfTheFirstChanges()
{
    makeFail(u"c"_s);
    QTest::ignoreMessage(QtWarningMsg, "The notes could not be saved: refused");
    Note &first = m_fixture->addNote(u"a"_s);
    Note &gone = m_fixture->addNote(u"b"_s);
    m_fixture->addNote(u"c"_s);
    QVERIFY(!m_fixture->store->save());
    m_fixture->addNote(u"d"_s);
    m_fixture->store->remove(gone);
    first.append(u"later"_s);
    letSucceed();
    QVERIFY(m_fixture->store->save());
    QCOMPARE(m_fixture->rows(), (QStringList{u"a\n\nlater"_s, u"c"_s, u"d"_s}));
}

void TestNotesStore::writesARecordThatCameBack()
{
    Note &note = m_fixture->addNote(u"a"_s);
    QVERIFY(m_fixture->store->save());
    Note::Fields again;
    again.id = note.id();
    again.text = u"again"_s;
    m_fixture->store->remove(note);
    m_fixture->store->insert(std::make_unique<Note>(m_fixture->clock, again));
    QVERIFY(m_fixture->store->save());
    QCOMPARE(m_fixture->rows(), QStringList{u"again"_s});

    m_fixture->store->remove(*m_fixture->store->findNote(again.id));
    m_fixture->store->insert(std::make_unique<Note>(m_fixture->clock, again));
    m_fixture->store->remove(*m_fixture->store->findNote(again.id));
    QVERIFY(m_fixture->store->save());
    QVERIFY(m_fixture->rows().isEmpty());
}

void TestNotesStore::agreesWithTheFileAfterRandomChanges()
{
    std::mt19937 random(7);
    const auto below = [&random](qsizetype limit) {
        return std::uniform_int_distribution<qsizetype>(0, limit - 1)(random);
    };
    for (int round = 0; round < 60; ++round) {
        LiveQuery<Note> &notes = m_fixture->store->notes();
        for (int step = 0; step < 20; ++step) {
            // Many have the same time.
            m_fixture->clock.advance(std::chrono::milliseconds(below(2)));
            const qsizetype choice = notes.isEmpty() ? 0 : below(4);
            if (choice < 2)
                m_fixture->addNote(QString::number(below(1000)));
            else if (choice == 2)
                m_fixture->store->remove(notes.at(below(notes.count())));
            else
                notes.at(below(notes.count())).append(QString::number(step));
        }
        QVERIFY(m_fixture->store->save());
        QStringList texts;
        for (qsizetype i = 0; i < notes.count(); ++i)
            texts.append(notes.at(i).id().toString() + notes.at(i).text());
        QVERIFY(m_fixture->open());
        LiveQuery<Note> &loaded = m_fixture->store->notes();
        QCOMPARE(loaded.count(), texts.count());
        for (qsizetype i = 0; i < loaded.count(); ++i)
            QCOMPARE(loaded.at(i).id().toString() + loaded.at(i).text(), texts[i]);
    }
}

void TestNotesStore::orderFollowsWritingOnly()
{
    Note &older = m_fixture->addNote(u"List\n☐ a"_s);
    m_fixture->clock.advance(1s);
    Note &newer = m_fixture->addNote(u"b"_s);
    LiveQuery<Note> &notes = m_fixture->store->notes();
    m_fixture->clock.advance(1s);
    older.toggleItem(1);
    older.setPinned(true);
    QCOMPARE(notes.first(), &newer);
    QCOMPARE(older.text(), u"List\n☑ a"_s);
    older.addChecklistItems(u"b"_s);
    QCOMPARE(notes.first(), &older);
    m_fixture->clock.advance(1s);
    newer.append(u"c"_s);
    QCOMPARE(notes.first(), &newer);
    m_fixture->clock.advance(1s);
    older.setText(older.text());
    QCOMPARE(notes.first(), &older);
}

void TestNotesStore::reportsARemovalBeforeTheRecordIsDeleted()
{
    Note &note = m_fixture->addNote(u"a"_s);
    QVERIFY(m_fixture->store->save());
    bool wasHeard = false;
    connect(&m_fixture->store->notes(), &LiveQueryBase::removed, this, [&](qsizetype, const RecordId &id) {
        wasHeard = note.id() == id && note.text() == u"a"_s && !m_fixture->store->findNote(id);
        // A listener that still writes to it must not bring it back.
        note.setText(u"b"_s);
    });
    m_fixture->store->remove(note);
    QVERIFY(wasHeard);
    QVERIFY(m_fixture->store->save());
    QVERIFY(m_fixture->rows().isEmpty());
}

void TestNotesStore::retriesAtGrowingIntervals()
{
    makeFail(u"a"_s);
    m_fixture->addNote(u"a"_s);
    // At once, then after 5, 10, 20, 40 and 60 seconds.
    for (int attempt = 0; attempt < 6; ++attempt)
        QTest::ignoreMessage(QtWarningMsg, "The notes could not be saved: refused");
    QVERIFY(!m_fixture->store->save());
    m_fixture->clock.advance(135s);
    letSucceed();
    m_fixture->clock.advance(59'999ms);
    QVERIFY(m_fixture->rows().isEmpty());
    m_fixture->clock.advance(1ms);
    QCOMPARE(m_fixture->rows(), QStringList{u"a"_s});
}

void TestNotesStore::saveFromElsewhereEndsTheRetries()
{
    makeFail(u"a"_s);
    for (int attempt = 0; attempt < 5; ++attempt)
        QTest::ignoreMessage(QtWarningMsg, "The notes could not be saved: refused");
    Note &note = m_fixture->addNote(u"a"_s);
    QVERIFY(!m_fixture->store->save());
    m_fixture->clock.advance(5s);
    // A second failure while one retry waits does not start another.
    note.setText(u"a"_s);
    QVERIFY(!m_fixture->store->save());
    QCOMPARE(m_fixture->clock.sleeperCount(), 1);
    note.setText(u"b"_s);
    QVERIFY(m_fixture->store->save());
    // A failure after that starts with the short delay again, and the old wait ends without effect.
    m_fixture->addNote(u"a"_s);
    QVERIFY(!m_fixture->store->save());
    QCOMPARE(m_fixture->clock.sleeperCount(), 2);
    m_fixture->clock.advance(10s);
    QCOMPARE(m_fixture->clock.sleeperCount(), 1);
    letSucceed();
    m_fixture->clock.advance(5s);
    QCOMPARE(m_fixture->rows(), (QStringList{u"b"_s, u"a"_s}));
    QCOMPARE(m_fixture->clock.sleeperCount(), 0);
}

void TestNotesStore::mayDieWhileItWaitsForARetry()
{
    makeFail(u"a"_s);
    for (int attempt = 0; attempt < 2; ++attempt)
        QTest::ignoreMessage(QtWarningMsg, "The notes could not be saved: refused");
    m_fixture->addNote(u"a"_s);
    QVERIFY(!m_fixture->store->save());
    m_fixture->close();
    m_fixture->clock.advance(60s);
    QCOMPARE(m_fixture->clock.sleeperCount(), 0);
}

void TestNotesStore::closingTriesOnceMore()
{
    m_fixture->addNote(u"never saved"_s);
    m_fixture->close();
    QCOMPARE(m_fixture->rows(), QStringList{u"never saved"_s});
}

void TestNotesStore::refusedRecordDoesNotHoldUpOthers()
{
    NotesStore &store = *m_fixture->store;
    makeFail(u"refused"_s);
    for (int attempt = 0; attempt < 4; ++attempt)
        QTest::ignoreMessage(QtWarningMsg, "The notes could not be saved: refused");
    m_fixture->addNote(u"a"_s);
    const Note &refused = m_fixture->addNote(u"refused"_s);
    m_fixture->addNote(u"b"_s);
    QVERIFY(!store.save());
    QCOMPARE(m_fixture->rows(), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(store.unwrittenTexts(), QStringList{u"refused"_s});
    QVERIFY2(store.problem().contains(u"(refused)"_s), qPrintable(store.problem()));
    // Later changes are saved and confirmed.
    m_fixture->addNote(u"c"_s);
    QVERIFY(store.save());
    QCOMPARE(m_fixture->rows(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    QVERIFY(store.hasPendingChanges() && !store.problem().isEmpty());
    // The store retries, and the same text entered again is reported again.
    m_fixture->clock.advance(5s);
    store.findNote(refused.id())->setText(u"refused"_s);
    QVERIFY(!store.save());
    letSucceed();
    m_fixture->clock.advance(10s);
    QVERIFY(!store.hasPendingChanges() && store.problem().isEmpty());
    QCOMPARE(m_fixture->rows(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"refused"_s}));
}

QTEST_GUILESS_MAIN(TestNotesStore)
#include "tst_notesstore.moc"
