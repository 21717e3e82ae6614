// SPDX-License-Identifier: MIT
#include "notes/notesstore.h"
#include "panel/notelistmodel.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Role = NoteListModel::Role;

class NoteListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void randomChangesEqualAPlainRecomputation();
    void pinningMovesOneCard();
    void largeSearchIsNoReset();
    void collapsedSectionIsRememberedAndLeavesTheKeys();
    void dayEndsWhileShown();
    void cardShowsThreeItems();

private:
    Note &addNote(const QString &text);
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QStringList recomputed() const;
    [[nodiscard]] QVariant at(int row, Role role) const { return m_list->data(m_list->index(row), role); }
    void changeAnything(QRandomGenerator &random);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MemoryClock> m_clock;
    std::unique_ptr<MemoryDefaults> m_defaults;
    std::unique_ptr<NotesStore> m_store;
    std::unique_ptr<NoteListModel> m_list;
    QString m_query;
};

void NoteListModelTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_clock = std::make_unique<MemoryClock>();
    m_defaults = std::make_unique<MemoryDefaults>();
    m_store = NotesStore::open(m_folder->filePath(u"Notes.store"_s), *m_clock).store;
    QVERIFY(m_store);
    m_list = std::make_unique<NoteListModel>(*m_store, *m_clock, *m_defaults);
    m_query.clear();
}

void NoteListModelTest::cleanup()
{
    m_list.reset();
    m_store.reset();
}

Note &NoteListModelTest::addNote(const QString &text)
{
    Note &note = m_store->insert(std::make_unique<Note>(*m_clock, text));
    m_clock->advance(1s);
    return note;
}

/// The rows as a user reads them.
QStringList NoteListModelTest::shown() const
{
    QStringList rows;
    for (int row = 0; row < m_list->rowCount(); ++row) {
        rows.append(at(row, Role::IsHeaderRole).toBool()
                        ? u"%1 %2"_s.arg(at(row, Role::SectionTitleRole).toString())
                              .arg(at(row, Role::SectionCountRole).toInt())
                        : at(row, Role::NoteIdRole).toString());
    }
    return rows;
}

/// The same from nothing but the store.
QStringList NoteListModelTest::recomputed() const
{
    const QDate today = QDateTime::fromMSecsSinceEpoch(m_clock->now().time_since_epoch() / 1ms).date();
    std::array<QStringList, 3> sections;
    for (qsizetype i = 0; i < m_store->notes().count(); ++i) {
        const Note &note = m_store->notes().at(i);
        if (!note.text().contains(m_query, Qt::CaseInsensitive)
            && !note.sourceApp().value_or(QString()).contains(m_query, Qt::CaseInsensitive))
            continue;
        const QDate day = QDateTime::fromMSecsSinceEpoch(note.updatedAt().time_since_epoch() / 1ms).date();
        const size_t section = note.isPinned() ? 0 : day == today ? 1 : 2;
        sections.at(section).append(note.id().toString(QUuid::WithoutBraces));
    }
    QStringList rows;
    const std::array titles{u"Pinned"_s, u"Today"_s, u"Earlier"_s};
    const std::array keys{u"collapsed.pinned"_s, u"collapsed.today"_s, u"collapsed.earlier"_s};
    for (size_t i = 0; i < sections.size(); ++i) {
        if (sections.at(i).isEmpty())
            continue;
        rows.append(u"%1 %2"_s.arg(titles.at(i)).arg(sections.at(i).size()));
        if (!m_defaults->boolForKey(keys.at(i)))
            rows += sections.at(i);
    }
    return rows;
}

void NoteListModelTest::changeAnything(QRandomGenerator &random)
{
    static const QStringList words{u"tea"_s, u"Tea time"_s, u"coffee"_s, u"\u2610 milk"_s, u"bread"_s};
    const auto word = [&random] { return words.at(random.bounded(static_cast<int>(words.size()))); };
    LiveQuery<Note> &notes = m_store->notes();
    Note *note = notes.isEmpty() ? nullptr : &notes.at(random.bounded(static_cast<int>(notes.count())));
    switch (const int choice = random.bounded(11)) {
    case 0:
    case 1:
    case 2: {
        CaptureSource source;
        source.app = word();
        m_store->insert(std::make_unique<Note>(*m_clock, word(), source));
        break;
    }
    case 3:
        if (note)
            m_store->remove(*note);
        break;
    case 4:
    case 5:
        if (note)
            note->setText(word());
        break;
    case 6:
        if (note)
            note->setPinned(!note->isPinned());
        break;
    case 7:
        if (note)
            note->toggleItem(0);
        break;
    case 8:
        m_query = random.bounded(2) == 0 ? QString() : word().left(1 + random.bounded(4));
        m_list->setQuery(m_query);
        break;
    case 9:
        m_clock->advance(random.bounded(10) == 0 ? 20h : 10min);
        // The day is read anew when the panel comes up.
        m_list->setShown(false);
        m_list->setShown(true);
        break;
    default:
        Q_ASSERT(choice == 10);
        if (const int rows = m_list->rowCount(); rows > 0) {
            const int row = random.bounded(rows);
            if (at(row, Role::IsHeaderRole).toBool())
                m_list->toggleSection(row);
        }
        break;
    }
}

void NoteListModelTest::randomChangesEqualAPlainRecomputation()
{
    const QAbstractItemModelTester tester(m_list.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy resets(m_list.get(), &QAbstractItemModel::modelReset);
    QRandomGenerator random(20);
    for (int step = 0; step < 1500; ++step) {
        changeAnything(random);
        QCOMPARE(shown(), recomputed());
    }
    QCOMPARE(resets.size(), 0);
}

void NoteListModelTest::pinningMovesOneCard()
{
    addNote(u"first"_s);
    Note &second = addNote(u"second"_s);
    addNote(u"third"_s);
    addNote(u"pinned"_s).setPinned(true);
    QSignalSpy moved(m_list.get(), &QAbstractItemModel::rowsMoved);
    QSignalSpy removed(m_list.get(), &QAbstractItemModel::rowsRemoved);

    second.setPinned(true);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(removed.size(), 0);
    QCOMPARE(shown(), recomputed());
}

void NoteListModelTest::largeSearchIsNoReset()
{
    for (int i = 0; i < 300; ++i)
        addNote(i % 2 == 0 ? u"tea"_s : u"coffee"_s);
    QSignalSpy removed(m_list.get(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy resets(m_list.get(), &QAbstractItemModel::modelReset);

    m_query = u"tea"_s;
    m_list->setQuery(m_query);
    QCOMPARE(shown(), recomputed());
    QCOMPARE(m_list->rowCount(), 151);
    QVERIFY(m_list->isSweeping());
    QCOMPARE(removed.size(), 1);
    QCOMPARE(resets.size(), 0);
    addNote(u"tea"_s);
    QVERIFY(!m_list->isSweeping());
}

void NoteListModelTest::collapsedSectionIsRememberedAndLeavesTheKeys()
{
    Note &old = addNote(u"old"_s);
    m_clock->advance(48h);
    m_list->setShown(true);
    addNote(u"new"_s);
    QCOMPARE(m_list->visibleCount(), 2);

    m_list->toggleSection(0);
    QCOMPARE(m_list->rowCount(), 3);
    QCOMPARE(m_list->visibleCount(), 1);
    QCOMPARE(m_list->visibleAt(0), old.id());
    const NoteListModel afterRestart(*m_store, *m_clock, *m_defaults);
    QCOMPARE(afterRestart.rowCount(), 3);
}

void NoteListModelTest::dayEndsWhileShown()
{
    addNote(u"tea"_s);
    m_list->setShown(true);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Today"_s);
    QSignalSpy changed(m_list.get(), &QAbstractItemModel::dataChanged);
    m_clock->advance(30s);
    QVERIFY(!changed.isEmpty());
    m_clock->advance(24h);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Earlier"_s);

    m_list->setShown(false);
    m_clock->advance(30s);
    QCOMPARE(m_clock->sleeperCount(), 0);
}

void NoteListModelTest::cardShowsThreeItems()
{
    addNote(u"\u2611 a\n\u2610 b\ntext\n\u2610 c\n\u2610 d\n\u2610 e"_s);
    QCOMPARE(at(1, Role::ItemTextsRole).toStringList(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(at(1, Role::ItemsDoneRole).value<QList<bool>>(), QList<bool>({true, false, false}));
    QCOMPARE(at(1, Role::ItemLinesRole).value<QList<int>>(), QList<int>({0, 1, 3}));
    QCOMPARE(at(1, Role::FurtherItemsRole).toInt(), 2);
    QCOMPARE(at(1, Role::PreviewRole).toString(), QString());
    QCOMPARE(at(1, Role::DoneRole).toInt(), 1);
    QCOMPARE(at(1, Role::TotalRole).toInt(), 5);

    addNote(QString());
    QCOMPARE(at(1, Role::TitleRole).toString(), u"New Note"_s);
}

QTEST_GUILESS_MAIN(NoteListModelTest)
#include "tst_notelistmodel.moc"
