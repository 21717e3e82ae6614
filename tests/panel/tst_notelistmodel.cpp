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

#include <ctime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Role = NoteListModel::Role;
using Scope = NoteListModel::Scope;

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
    void openNoteStaysInItsPlace();
    void openNoteStaysWhateverIsWritten();
    void dayEndsWhileShown();
    void timeZoneChangesWhileShown();
    void cardShowsThreeItems();

private:
    Note &addNote(const QString &text);
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QStringList recomputed() const;
    [[nodiscard]] QVariant at(int row, int role) const { return m_list->data(m_list->index(row), role); }
    void changeAnything(QRandomGenerator &random);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MemoryClock> m_clock;
    std::unique_ptr<MemoryDefaults> m_defaults;
    std::unique_ptr<NotesStore> m_store;
    std::unique_ptr<NoteListModel> m_list;
    QString m_query;
    Scope m_scope = Scope::AllNotes;
    /// The dates of all notes when one was opened.
    std::optional<QHash<QString, Date>> m_frozen;
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
    m_scope = Scope::AllNotes;
    m_frozen.reset();
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
                        : at(row, Role::CardIdRole).toString());
    }
    return rows;
}

/// The same from nothing but the store.
QStringList NoteListModelTest::recomputed() const
{
    const QDate today = QDateTime::fromMSecsSinceEpoch(m_clock->now().time_since_epoch() / 1ms).date();
    std::array<QList<std::pair<Date, RecordId>>, 3> sections;
    for (qsizetype i = 0; i < m_store->notes().count(); ++i) {
        const Note &note = m_store->notes().at(i);
        if (!note.text().contains(m_query, Qt::CaseInsensitive)
            && !note.sourceApp().value_or(QString()).contains(m_query, Qt::CaseInsensitive))
            continue;
        if (m_scope == Scope::Checklists && note.checklistItems().isEmpty())
            continue;
        const Date date =
            m_frozen ? m_frozen->value(note.id().toString(), note.updatedAt()) : note.updatedAt();
        const QDate day = QDateTime::fromMSecsSinceEpoch(date.time_since_epoch() / 1ms).date();
        sections.at(note.isPinned() ? 0 : day == today ? 1 : 2).append({date, note.id()});
    }
    QStringList rows;
    const std::array titles{u"Pinned"_s, u"Today"_s, u"Earlier"_s};
    const std::array keys{u"collapsed.pinned"_s, u"collapsed.today"_s, u"collapsed.earlier"_s};
    for (size_t i = 0; i < sections.size(); ++i) {
        if (sections.at(i).isEmpty())
            continue;
        std::ranges::sort(sections.at(i), [](const auto &a, const auto &b) {
            return a.first != b.first ? a.first > b.first : a.second < b.second;
        });
        rows.append(u"%1 %2"_s.arg(titles.at(i)).arg(sections.at(i).size()));
        if (m_defaults->boolForKey(keys.at(i)))
            continue;
        for (const auto &[date, id] : sections.at(i))
            rows.append(id.toString(QUuid::WithoutBraces));
    }
    return rows;
}

void NoteListModelTest::changeAnything(QRandomGenerator &random)
{
    static const QStringList words{u"tea"_s, u"Tea time"_s, u"coffee"_s, u"\u2610 milk"_s, u"bread"_s};
    const auto word = [&random] { return words.at(random.bounded(static_cast<int>(words.size()))); };
    LiveQuery<Note> &notes = m_store->notes();
    Note *note = notes.isEmpty() ? nullptr : &notes.at(random.bounded(static_cast<int>(notes.count())));
    switch (const int choice = random.bounded(13)) {
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
    case 10:
        m_scope = m_scope == Scope::AllNotes ? Scope::Checklists : Scope::AllNotes;
        m_list->setScope(m_scope);
        break;
    case 11:
        // An identity of no note freezes the order as well, and keeps no note in the list.
        if (m_frozen) {
            m_frozen.reset();
            m_list->setOpenNote(std::nullopt);
            break;
        }
        m_frozen.emplace();
        for (qsizetype i = 0; i < notes.count(); ++i)
            m_frozen->insert(notes.at(i).id().toString(), notes.at(i).updatedAt());
        m_list->setOpenNote(RecordId::createUuid());
        break;
    default:
        Q_ASSERT(choice == 12);
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
    for (int step = 0; step < 1200; ++step) {
        changeAnything(random);
        QCOMPARE(shown(), recomputed());
        qsizetype checklists = 0;
        for (qsizetype i = 0; i < m_store->notes().count(); ++i)
            checklists += m_store->notes().at(i).checklistItems().isEmpty() ? 0 : 1;
        QCOMPARE(m_list->checklistCount(), checklists);
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

void NoteListModelTest::openNoteStaysInItsPlace()
{
    Note &old = addNote(u"old"_s);
    m_clock->advance(48h);
    m_list->setShown(true);
    addNote(u"first"_s);
    addNote(u"second"_s);
    const QStringList before = shown();
    m_list->setOpenNote(old.id());
    QSignalSpy changed(m_list.get(), &QAbstractItemModel::dataChanged);
    old.setText(u"old and new"_s);
    QCOMPARE(shown(), before);
    // Only the editor is told; what a closed card shows is not worked out with every key.
    QCOMPARE(changed.size(), 1);
    QVERIFY(!changed.constFirst().at(2).value<QList<int>>().contains(NoteListModel::PreviewRole));

    QSignalSpy moved(m_list.get(), &QAbstractItemModel::rowsMoved);
    QSignalSpy removed(m_list.get(), &QAbstractItemModel::rowsRemoved);
    m_list->setOpenNote(std::nullopt);
    QCOMPARE(shown(), recomputed());
    QCOMPARE(m_list->visibleAt(0), old.id());
    QCOMPARE(moved.size(), 1);
    QCOMPARE(removed.size(), 1); // The header of the section that it has left empty.
}

void NoteListModelTest::openNoteStaysWhateverIsWritten()
{
    Note &list = addNote(u"\u2610 milk"_s);
    m_list->setScope(Scope::Checklists);
    m_list->setQuery(u"milk"_s);
    m_list->setOpenNote(list.id());
    list.setText(u"bread"_s);
    QCOMPARE(m_list->visibleCount(), 1);
    m_list->setOpenNote(std::nullopt);
    QCOMPARE(m_list->visibleCount(), 0);
}

void NoteListModelTest::dayEndsWhileShown()
{
    const QDate today = QDateTime::fromMSecsSinceEpoch(m_clock->now().time_since_epoch() / 1ms).date();
    const Date midnight{std::chrono::milliseconds{today.addDays(1).startOfDay().toMSecsSinceEpoch()}};
    m_clock->setNow(midnight - 45s);
    addNote(u"tea"_s);
    m_list->setShown(true);
    QSignalSpy changed(m_list.get(), &QAbstractItemModel::dataChanged);
    m_clock->advance(30s);
    QVERIFY(!changed.isEmpty());
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Today"_s);
    // One second before the last date was, so this is midnight to the moment.
    m_clock->advance(14s);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Earlier"_s);

    m_list->setShown(false);
    m_clock->advance(30s);
    QCOMPARE(m_clock->sleeperCount(), 0);
}

void NoteListModelTest::timeZoneChangesWhileShown()
{
    const QByteArray zone = qgetenv("TZ");
    const auto restore = qScopeGuard([&zone] {
        qputenv("TZ", zone);
        tzset();
    });
    const auto moveTo = [](const char *name) {
        qputenv("TZ", name);
        tzset();
    };
    moveTo("UTC0");
    m_clock->setNow(Date{std::chrono::years{50}} + 12h);
    const Date noon = m_clock->now();
    m_clock->setNow(noon - 10h);
    addNote(u"at two in the morning"_s);
    m_clock->setNow(noon);
    m_list->setShown(true);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Today"_s);
    // In the zone where the user is now it was the evening before.
    moveTo("XYZ10");
    m_clock->advance(30s);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Earlier"_s);
}

void NoteListModelTest::cardShowsThreeItems()
{
    addNote(u"\u2611 a\n\u2610 b\ntext\n\u2610 c\n\u2610 d\n\u2610 e"_s);
    QCOMPARE(at(1, NoteListModel::ItemTextsRole).toStringList(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(at(1, NoteListModel::ItemsDoneRole).value<QList<bool>>(), QList<bool>({true, false, false}));
    QCOMPARE(at(1, NoteListModel::ItemLinesRole).value<QList<int>>(), QList<int>({0, 1, 3}));
    QCOMPARE(at(1, NoteListModel::FurtherItemsRole).toInt(), 2);
    QCOMPARE(at(1, NoteListModel::PreviewRole).toString(), QString());
    QCOMPARE(at(1, NoteListModel::DoneRole).toInt(), 1);
    QCOMPARE(at(1, NoteListModel::TotalRole).toInt(), 5);

    addNote(QString());
    QCOMPARE(at(1, NoteListModel::TitleRole).toString(), u"New Note"_s);
}

QTEST_GUILESS_MAIN(NoteListModelTest)
#include "tst_notelistmodel.moc"
