// SPDX-License-Identifier: MIT
#include "notes/promptrules.h"
#include "platform/memory/memoryclock.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

class TestPrompts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void onlyTheNewestPromptIsARepeat();
    void repeatIsExact_data();
    void repeatIsExact();
    void repeatOfALoneSurrogateIsFound();
    void followUpIsTrimmedAndNeverARepeat();
    void clearDoneDeletesTheDoneOnes();
    void togglingKeepsThePlace();

private:
    promptrules::SaveOutcome save(const QString &text);
    QStringList texts() const;
    void reopen();

    MemoryClock m_clock;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<NotesStore> m_store;
};

using Outcome = promptrules::SaveOutcome;

void TestPrompts::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    reopen();
    QVERIFY(m_store);
}

void TestPrompts::cleanup()
{
    m_store.reset();
}

Outcome TestPrompts::save(const QString &text)
{
    m_clock.advance(1s);
    return promptrules::saveFromSelection(*m_store, m_clock, text);
}

QStringList TestPrompts::texts() const
{
    QStringList result;
    for (qsizetype i = 0; i < m_store->prompts().count(); ++i)
        result.append(m_store->prompts().at(i).text());
    return result;
}

void TestPrompts::reopen()
{
    m_store.reset();
    m_store = NotesStore::open(m_folder->filePath(u"Notes.store"_s), m_clock).store;
}

void TestPrompts::onlyTheNewestPromptIsARepeat()
{
    QCOMPARE(save(u"A"_s), Outcome::Saved);
    QCOMPARE(save(u"A"_s), Outcome::AlreadyThere);
    QCOMPARE(save(u"B"_s), Outcome::Saved);
    QCOMPARE(save(u"A"_s), Outcome::Saved);
    reopen();
    QCOMPARE(texts(), (QStringList{u"A"_s, u"B"_s, u"A"_s}));
    QCOMPARE(save(u"A"_s), Outcome::AlreadyThere);
    QVERIFY(m_store->prompts().first()->isCaptured());
}

void TestPrompts::repeatIsExact_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("case") << u"explain THIS"_s;
    QTest::newRow("white space") << u"Explain this "_s;
    QTest::newRow("NUL at the end") << u"Explain this\0"_s;
}

void TestPrompts::repeatIsExact()
{
    QFETCH(QString, text);
    QCOMPARE(save(u"Explain this"_s), Outcome::Saved);
    QCOMPARE(save(text), Outcome::Saved);
    QCOMPARE(m_store->prompts().first()->text(), text);
}

void TestPrompts::repeatOfALoneSurrogateIsFound()
{
    const QString text = u"cut "_s + QChar(0xD83D);
    QCOMPARE(save(text), Outcome::Saved);
    QCOMPARE(save(text), Outcome::AlreadyThere);
}

void TestPrompts::followUpIsTrimmedAndNeverARepeat()
{
    QVERIFY(promptrules::saveFollowUp(*m_store, m_clock, u"\n Again\t\u2028"_s));
    QVERIFY(promptrules::saveFollowUp(*m_store, m_clock, u"Again"_s));
    QVERIFY(!promptrules::saveFollowUp(*m_store, m_clock, u" \n"_s));
    reopen();
    QCOMPARE(texts(), (QStringList{u"Again"_s, u"Again"_s}));
    QVERIFY(!m_store->prompts().first()->isCaptured());
}

void TestPrompts::clearDoneDeletesTheDoneOnes()
{
    for (const QString &text : {u"1"_s, u"2"_s, u"3"_s})
        save(text);
    m_store->prompts().at(0).toggleDone();
    m_store->prompts().at(2).toggleDone();
    promptrules::clearDone(*m_store);
    QCOMPARE(texts(), QStringList{u"2"_s});
    // Also saves what was pending before, if no prompt is done.
    m_store->insert(std::make_unique<Prompt>(m_clock, u"4"_s, Prompt::Origin::FollowUp));
    promptrules::clearDone(*m_store);
    QVERIFY(!m_store->hasPendingChanges());
    reopen();
    QCOMPARE(texts(), (QStringList{u"4"_s, u"2"_s}));
}

void TestPrompts::togglingKeepsThePlace()
{
    for (const QString &text : {u"1"_s, u"2"_s, u"3"_s})
        save(text);
    Prompt &middle = m_store->prompts().at(1);
    middle.toggleDone();
    QCOMPARE(texts(), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
    QVERIFY(m_store->save());
    reopen();
    QCOMPARE(texts(), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
    QVERIFY(m_store->prompts().at(1).isDone());
    m_store->prompts().at(1).toggleDone();
    QVERIFY(m_store->save());
    QVERIFY(m_store->donePrompts().isEmpty());
}

QTEST_GUILESS_MAIN(TestPrompts)
#include "tst_prompts.moc"
