// SPDX-License-Identifier: MIT
#include "notes/notesstore.h"
#include "panel/promptlistmodel.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Model = PromptListModel;

class PromptListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cardsStandInTheirSections();
    void keysBeginAfterACollapsedSection();

private:
    Prompt &add(const QString &text, Prompt::Origin origin = Prompt::Origin::FollowUp)
    {
        Prompt &prompt = m_store->insert(std::make_unique<Prompt>(m_clock, text, origin));
        m_clock.advance(1s);
        return prompt;
    }
    /// The rows as a user reads them.
    [[nodiscard]] QString shown() const;

    QTemporaryDir m_folder;
    MemoryClock m_clock;
    std::unique_ptr<MemoryDefaults> m_defaults;
    std::unique_ptr<NotesStore> m_store;
    std::unique_ptr<Model> m_list;
};

void PromptListModelTest::init()
{
    m_list.reset();
    m_defaults = std::make_unique<MemoryDefaults>();
    m_store.reset();
    m_store =
        NotesStore::open(m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction())), m_clock).store;
    m_list = std::make_unique<Model>(*m_store, *m_defaults);
}

QString PromptListModelTest::shown() const
{
    QStringList rows;
    for (int row = 0; row < m_list->rowCount(); ++row) {
        const auto at = [&](int role) { return m_list->data(m_list->index(row), role).toString(); };
        rows.append(at(Model::TextRole).isEmpty()
                        ? at(Model::SectionTitleRole) + u' ' + at(Model::SectionCountRole)
                        : at(Model::TextRole));
    }
    return rows.join(u", "_s);
}

void PromptListModelTest::cardsStandInTheirSections()
{
    const QAbstractItemModelTester tester(m_list.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    add(u"older"_s, Prompt::Origin::Captured);
    Prompt &middle = add(u"middle"_s, Prompt::Origin::Captured);
    add(u"Newer"_s, Prompt::Origin::Captured);
    add(u"why"_s);
    const QString before = u"Follow-up prompts 1, why, Saved from selection 3, Newer, middle, older"_s;
    QCOMPARE(shown(), before);
    QCOMPARE(m_list->openCount(), 4);
    QVERIFY(!m_list->hasDone());

    QSignalSpy moved(m_list.get(), &QAbstractItemModel::rowsMoved);
    middle.toggleDone();
    QCOMPARE(moved.size(), 1);
    QCOMPARE(shown(), u"Follow-up prompts 1, why, Saved from selection 2, Newer, older, Done 1, middle"_s);
    QCOMPARE(m_list->openCount(), 3);
    QVERIFY(m_list->hasDone());
    m_list->setQuery(u"E"_s);
    QCOMPARE(shown(), u"Saved from selection 2, Newer, older, Done 1, middle"_s);
    m_list->setQuery({});
    middle.toggleDone();
    QCOMPARE(moved.size(), 2);
    QCOMPARE(shown(), before);

    m_list->setQuery(u"middle"_s);
    add(u"not this one"_s);
    add(u"in the middle"_s);
    m_store->remove(middle);
    QCOMPARE(shown(), u"Follow-up prompts 1, in the middle"_s);
    QCOMPARE(m_list->openCount(), 5);
}

void PromptListModelTest::keysBeginAfterACollapsedSection()
{
    add(u"follow-up"_s);
    const Prompt &saved = add(u"saved"_s, Prompt::Origin::Captured);
    m_list->toggleSection(0);
    QCOMPARE(m_list->visibleCount(), 1);
    QCOMPARE(m_list->visibleAt(0), saved.id());
    QCOMPARE(Model(*m_store, *m_defaults).visibleAt(0), saved.id());
}

QTEST_GUILESS_MAIN(PromptListModelTest)
#include "tst_promptlistmodel.moc"
