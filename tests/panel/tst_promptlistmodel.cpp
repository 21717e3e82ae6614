// SPDX-License-Identifier: MIT
#include "notes/notesstore.h"
#include "panel/promptlistmodel.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
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
    void randomChangesEqualAPlainRecomputation();
    void tickingMovesOneCardAndBack();
    void keysBeginAfterACollapsedSection();

private:
    Prompt &add(const QString &text, Prompt::Origin origin = Prompt::Origin::FollowUp)
    {
        Prompt &prompt = m_store->insert(std::make_unique<Prompt>(m_clock, text, origin));
        m_clock.advance(1s);
        return prompt;
    }
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QStringList recomputed() const;

    QTemporaryDir m_folder;
    MemoryClock m_clock;
    std::unique_ptr<MemoryDefaults> m_defaults;
    std::unique_ptr<NotesStore> m_store;
    std::unique_ptr<Model> m_list;
    QString m_query;
};

void PromptListModelTest::init()
{
    m_list.reset();
    m_defaults = std::make_unique<MemoryDefaults>();
    m_store.reset();
    m_store =
        NotesStore::open(m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction())), m_clock).store;
    m_list = std::make_unique<Model>(*m_store, *m_defaults);
    m_query.clear();
}

QStringList PromptListModelTest::shown() const
{
    QStringList rows;
    for (int row = 0; row < m_list->rowCount(); ++row) {
        const auto at = [&](int role) { return m_list->data(m_list->index(row), role); };
        rows.append(at(Model::IsHeaderRole).toBool() ? u"%1 %2"_s.arg(at(Model::SectionTitleRole).toString())
                                                           .arg(at(Model::SectionCountRole).toInt())
                                                     : at(Model::CardIdRole).toString());
    }
    return rows;
}

QStringList PromptListModelTest::recomputed() const
{
    std::array<QStringList, 3> sections;
    for (qsizetype i = 0; i < m_store->prompts().count(); ++i) {
        const Prompt &prompt = m_store->prompts().at(i);
        if (!prompt.text().contains(m_query, Qt::CaseInsensitive))
            continue;
        const size_t section = prompt.isDone() ? 2 : prompt.isCaptured() ? 1 : 0;
        sections.at(section).append(prompt.id().toString(QUuid::WithoutBraces));
    }
    QStringList rows;
    const std::array titles{u"Follow-up prompts"_s, u"Saved from selection"_s, u"Done"_s};
    const std::array keys{u"collapsed.prompts.followup"_s, u"collapsed.prompts.saved"_s,
                          u"collapsed.prompts.done"_s};
    for (size_t i = 0; i < sections.size(); ++i) {
        if (sections.at(i).isEmpty())
            continue;
        rows.append(u"%1 %2"_s.arg(titles.at(i)).arg(sections.at(i).size()));
        if (!m_defaults->boolForKey(keys.at(i)))
            rows += sections.at(i);
    }
    return rows;
}

void PromptListModelTest::randomChangesEqualAPlainRecomputation()
{
    const QAbstractItemModelTester tester(m_list.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy resets(m_list.get(), &QAbstractItemModel::modelReset);
    QRandomGenerator random(7);
    const QStringList words{u"why"_s, u"Why not"_s, u"explain"_s};
    LiveQuery<Prompt> &prompts = m_store->prompts();
    for (int step = 0; step < 1500; ++step) {
        const int count = static_cast<int>(prompts.count());
        Prompt *prompt = count > 0 ? &prompts.at(random.bounded(count)) : nullptr;
        const int choice = random.bounded(9);
        if (choice < 3) {
            add(words.at(random.bounded(3)),
                random.bounded(2) == 0 ? Prompt::Origin::FollowUp : Prompt::Origin::Captured);
        } else if (choice < 5 && prompt) {
            m_store->remove(*prompt);
        } else if (choice < 7 && prompt) {
            prompt->toggleDone();
        } else if (choice == 7) {
            m_query = random.bounded(2) == 0 ? QString() : words.at(random.bounded(3));
            m_list->setQuery(m_query);
        } else if (m_list->rowCount() > 0) {
            const int row = random.bounded(m_list->rowCount());
            if (m_list->data(m_list->index(row), Model::IsHeaderRole).toBool())
                m_list->toggleSection(row);
        }
        QCOMPARE(shown(), recomputed());
        qsizetype open = 0;
        for (qsizetype i = 0; i < prompts.count(); ++i)
            open += prompts.at(i).isDone() ? 0 : 1;
        QCOMPARE(m_list->openCount(), open);
    }
    QCOMPARE(resets.size(), 0);
}

void PromptListModelTest::tickingMovesOneCardAndBack()
{
    add(u"older"_s, Prompt::Origin::Captured);
    Prompt &prompt = add(u"middle"_s, Prompt::Origin::Captured);
    add(u"newer"_s, Prompt::Origin::Captured);
    const QStringList before = shown();
    QSignalSpy moved(m_list.get(), &QAbstractItemModel::rowsMoved);
    prompt.toggleDone();
    QCOMPARE(moved.size(), 1);
    QCOMPARE(shown(), recomputed());
    prompt.toggleDone();
    QCOMPARE(moved.size(), 2);
    QCOMPARE(shown(), before);
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
