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
    void tooLongTextIsRefused();

private:
    promptrules::Outcome save(const QString &text);
    QStringList texts() const;

    std::unique_ptr<StoreFixture> m_fixture;
};

using Outcome = promptrules::Outcome;

void TestPrompts::init()
{
    m_fixture = std::make_unique<StoreFixture>();
    QVERIFY(m_fixture->open());
}

Outcome TestPrompts::save(const QString &text)
{
    m_fixture->clock.advance(1s);
    return promptrules::keepSelection(*m_fixture->store, m_fixture->clock, text).outcome;
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
    QCOMPARE(save(u"Explain this"_s), Outcome::Added);
    QCOMPARE(save(text), Outcome::Added);
    QCOMPARE(m_fixture->store->prompts().first()->text(), text);
}

void TestPrompts::repeatOfALoneSurrogateIsFound()
{
    const QString text = u"cut "_s + QChar(0xD83D);
    QCOMPARE(save(text), Outcome::Added);
    QCOMPARE(save(text), Outcome::AlreadyThere);
}

void TestPrompts::followUpIsTrimmedAndNeverARepeat()
{
    const auto add = [this](const QString &text) {
        return promptrules::addTyped(*m_fixture->store, m_fixture->clock, text).outcome;
    };
    QCOMPARE(add(u"\n Again\t\u2028"_s), Outcome::Added);
    QCOMPARE(add(u"Again"_s), Outcome::Added);
    QCOMPARE(add(u" \n"_s), Outcome::Empty);
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

void TestPrompts::tooLongTextIsRefused()
{
    NotesStore &store = *m_fixture->store;
    const auto outcomes = [&](const QString &text) {
        return QList{noterules::add(store, m_fixture->clock, text).outcome,
                     noterules::addTyped(store, m_fixture->clock, text).outcome,
                     promptrules::addTyped(store, m_fixture->clock, text).outcome};
    };
    // Two bytes each, and white space that is not kept.
    QString text(noterules::kMaximumBytes / 2, u'\u00e4');
    QCOMPARE(outcomes(text + u'\n'), QList<Outcome>(3, Outcome::Added));
    QCOMPARE(outcomes(text + u'x'), QList<Outcome>(3, Outcome::TooLong));
    QCOMPARE(store.notes().count(), 2);
    QCOMPARE(store.prompts().count(), 1);
}

QTEST_GUILESS_MAIN(TestPrompts)
#include "tst_prompts.moc"
