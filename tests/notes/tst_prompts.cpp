// SPDX-License-Identifier: MIT
#include "storefixture.h"

#include "notes/promptrules.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

class TestPrompts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void repeatIsExact_data();
    void repeatIsExact();
    void repeatOfALoneSurrogateIsFound();
    void followUpIsTrimmedAndNeverARepeat();
    void doneIsKept();

private:
    promptrules::SaveOutcome save(const QString &text);
    QStringList texts() const;

    std::unique_ptr<StoreFixture> m_fixture;
};

using Outcome = promptrules::SaveOutcome;

void TestPrompts::init()
{
    m_fixture = std::make_unique<StoreFixture>();
    QVERIFY(m_fixture->open());
}

Outcome TestPrompts::save(const QString &text)
{
    m_fixture->clock.advance(1s);
    return promptrules::saveFromSelection(*m_fixture->store, m_fixture->clock, text);
}

QStringList TestPrompts::texts() const
{
    QStringList result;
    for (qsizetype i = 0; i < m_fixture->store->prompts().count(); ++i)
        result.append(m_fixture->store->prompts().at(i).text());
    return result;
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
    QCOMPARE(m_fixture->store->prompts().first()->text(), text);
}

void TestPrompts::repeatOfALoneSurrogateIsFound()
{
    const QString text = u"cut "_s + QChar(0xD83D);
    QCOMPARE(save(text), Outcome::Saved);
    QCOMPARE(save(text), Outcome::AlreadyThere);
}

void TestPrompts::followUpIsTrimmedAndNeverARepeat()
{
    QVERIFY(promptrules::saveFollowUp(*m_fixture->store, m_fixture->clock, u"\n Again\t\u2028"_s));
    QVERIFY(promptrules::saveFollowUp(*m_fixture->store, m_fixture->clock, u"Again"_s));
    QVERIFY(!promptrules::saveFollowUp(*m_fixture->store, m_fixture->clock, u" \n"_s));
    QVERIFY(m_fixture->open());
    QCOMPARE(texts(), (QStringList{u"Again"_s, u"Again"_s}));
    QVERIFY(!m_fixture->store->prompts().first()->isCaptured());
}

void TestPrompts::doneIsKept()
{
    for (const QString &text : {u"1"_s, u"2"_s, u"3"_s})
        save(text);
    m_fixture->store->prompts().at(1).toggleDone();
    QVERIFY(m_fixture->store->save());
    QVERIFY(m_fixture->open());
    QCOMPARE(texts(), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
    QVERIFY(m_fixture->store->prompts().at(1).isDone());
}

QTEST_GUILESS_MAIN(TestPrompts)
#include "tst_prompts.moc"
