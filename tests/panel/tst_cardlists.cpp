// SPDX-License-Identifier: MIT
#include "notes/notesstore.h"
#include "panel/notelistmodel.h"
#include "panel/promptlistmodel.h"
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

/// The rows of the lists of notes and prompts, whatever happens to the records.
class CardListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void randomChangesEqualAPlainRecomputation();
    void pinningMovesOneCard();
    void largeSearchIsNoReset();
    void typingOnFindsWhatAFreshSearchFinds_data();
    void typingOnFindsWhatAFreshSearchFinds();
    void collapsedSectionIsRememberedAndLeavesTheKeys();
    void openNoteStaysInItsPlace();
    void openNoteStaysWhateverIsWritten();
    void dayEndsWhileShown();
    void timeZoneChangesWhileShown();
    void cardShowsThreeItems();
    void promptsStandInTheirSections();

private:
    Note &addNote(const QString &text);
    Prompt &addPrompt(const QString &text, Prompt::Origin origin = Prompt::Origin::FollowUp);
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QString shownPrompts() const;
    [[nodiscard]] QStringList recomputed() const;
    [[nodiscard]] QVariant at(int row, int role) const { return m_list->data(m_list->index(row), role); }
    void changeAnything(QRandomGenerator &random);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MemoryClock> m_clock;
    std::unique_ptr<MemoryDefaults> m_defaults;
    std::unique_ptr<NotesStore> m_store;
    std::unique_ptr<NoteListModel> m_list;
    std::unique_ptr<PromptListModel> m_prompts;
    QString m_query;
    Scope m_scope = Scope::AllNotes;
    /// The dates of all notes at the time when one was opened.
    std::optional<QHash<QString, Date>> m_frozen;
};

void CardListsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_clock = std::make_unique<MemoryClock>();
    m_defaults = std::make_unique<MemoryDefaults>();
    m_store = NotesStore::open(m_folder->filePath(u"Notes.store"_s), *m_clock).store;
    QVERIFY(m_store);
    m_list = std::make_unique<NoteListModel>(*m_store, *m_clock, *m_defaults);
    m_prompts = std::make_unique<PromptListModel>(*m_store, *m_defaults);
    m_query.clear();
    m_scope = Scope::AllNotes;
    m_frozen.reset();
}

void CardListsTest::cleanup()
{
    m_list.reset();
    m_prompts.reset();
    m_store.reset();
}

Note &CardListsTest::addNote(const QString &text)
{
    Note &note = m_store->insert(std::make_unique<Note>(*m_clock, text));
    m_clock->advance(1s);
    return note;
}

Prompt &CardListsTest::addPrompt(const QString &text, Prompt::Origin origin)
{
    Prompt &prompt = m_store->insert(std::make_unique<Prompt>(*m_clock, text, origin));
    m_clock->advance(1s);
    return prompt;
}

/// The rows as a user reads them.
QStringList CardListsTest::shown() const
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

QString CardListsTest::shownPrompts() const
{
    QStringList rows;
    for (int row = 0; row < m_prompts->rowCount(); ++row) {
        const auto at = [&](int role) { return m_prompts->data(m_prompts->index(row), role).toString(); };
        rows.append(at(PromptListModel::TextRole).isEmpty()
                        ? at(PromptListModel::SectionTitleRole) + u' ' + at(PromptListModel::SectionCountRole)
                        : at(PromptListModel::TextRole));
    }
    return rows.join(u", "_s);
}

/// The same, computed only from the store.
QStringList CardListsTest::recomputed() const
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

void CardListsTest::changeAnything(QRandomGenerator &random)
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
        // The current day is updated when the panel is shown.
        m_list->setShown(false);
        m_list->setShown(true);
        break;
    case 10:
        m_scope = m_scope == Scope::AllNotes ? Scope::Checklists : Scope::AllNotes;
        m_list->setScope(m_scope);
        break;
    case 11:
        // The identity of a missing note freezes the order as well, and keeps no note in the list.
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

void CardListsTest::randomChangesEqualAPlainRecomputation()
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

void CardListsTest::pinningMovesOneCard()
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

void CardListsTest::largeSearchIsNoReset()
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
    m_query = u"coffee"_s;
    m_list->setQuery(m_query);
    QCOMPARE(shown(), recomputed());
    // A view keeps its cards, which now show other notes.
    QCOMPARE(removed.size(), 1);
    addNote(u"tea"_s);
    QVERIFY(!m_list->isSweeping());
}

void CardListsTest::typingOnFindsWhatAFreshSearchFinds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("typed");

    QTest::newRow("accent after its letter")
        << u"Caf\u00e9"_s << QStringList{u"caf"_s, u"cafe"_s, u"cafe\u0301"_s};
    QTest::newRow("accented letter taken apart") << u"cafe\u0301"_s << QStringList{u"e"_s, u"e\u0301"_s};
    QTest::newRow("two marks") << u"\u1ec7"_s << QStringList{u"e"_s, u"e\u0323"_s, u"e\u0323\u0302"_s};
    QTest::newRow("syllable of two letters") << u"\uac00"_s << QStringList{u"\u1100"_s, u"\u1100\u1161"_s};
}

void CardListsTest::typingOnFindsWhatAFreshSearchFinds()
{
    QFETCH(QString, text);
    QFETCH(QStringList, typed);
    addNote(text);
    addNote(u"other"_s);
    for (const QString &query : typed)
        m_list->setQuery(query);
    const QStringList found = shown();
    m_list->setQuery({});
    m_list->setQuery(typed.constLast());
    QCOMPARE(found, shown());
    QCOMPARE(m_list->visibleCount(), 1);
}

void CardListsTest::collapsedSectionIsRememberedAndLeavesTheKeys()
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

void CardListsTest::openNoteStaysInItsPlace()
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
    // Only the editor is notified; what a closed card shows is not recomputed for every key.
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

void CardListsTest::openNoteStaysWhateverIsWritten()
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

void CardListsTest::dayEndsWhileShown()
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
    // The last date was one second earlier, so this is exactly midnight.
    m_clock->advance(14s);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Earlier"_s);

    m_list->setShown(false);
    m_clock->advance(30s);
    QCOMPARE(m_clock->sleeperCount(), 0);
}

void CardListsTest::timeZoneChangesWhileShown()
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
    // In the user's current time zone, it was the evening before.
    moveTo("XYZ10");
    m_clock->advance(30s);
    QCOMPARE(at(0, Role::SectionTitleRole).toString(), u"Earlier"_s);
}

void CardListsTest::cardShowsThreeItems()
{
    addNote(u"\u2611 a\n\u2610 b\ntext\n\u2610 c\n\u2610 d\n\u2610 e"_s);
    QCOMPARE(at(1, NoteListModel::ItemTextsRole).toStringList(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(at(1, NoteListModel::ItemsDoneRole).value<QList<bool>>(), QList<bool>({true, false, false}));
    QCOMPARE(at(1, NoteListModel::ItemLinesRole).value<QList<int>>(), QList<int>({0, 1, 3}));
    QCOMPARE(at(1, NoteListModel::FurtherItemsRole).toInt(), 2);
    QCOMPARE(at(1, NoteListModel::PreviewRole).toString(), QString());
    QCOMPARE(at(1, NoteListModel::DoneRole).toInt(), 1);
    QCOMPARE(at(1, NoteListModel::TotalRole).toInt(), 5);

    // The side where each item begins in the editor, whatever is between them.
    addNote(u"\u2610 1\nשלום\n\u2610 2\nabc\n\u2610 \u2067ש\u2069 3"_s);
    QCOMPARE(at(1, NoteListModel::ItemsRightToLeftRole).value<QList<bool>>(),
             QList<bool>({false, true, false}));

    addNote(QString());
    QCOMPARE(at(1, NoteListModel::TitleRole).toString(), u"New Note"_s);
}

void CardListsTest::promptsStandInTheirSections()
{
    const QAbstractItemModelTester tester(m_prompts.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    addPrompt(u"older"_s, Prompt::Origin::Captured);
    Prompt &middle = addPrompt(u"middle"_s, Prompt::Origin::Captured);
    addPrompt(u"Newer"_s, Prompt::Origin::Captured);
    addPrompt(u"why"_s);
    const QString before = u"Follow-up prompts 1, why, Saved from selection 3, Newer, middle, older"_s;
    QCOMPARE(shownPrompts(), before);
    QCOMPARE(m_prompts->openCount(), 4);
    QVERIFY(!m_prompts->hasDone());

    QSignalSpy moved(m_prompts.get(), &QAbstractItemModel::rowsMoved);
    middle.toggleDone();
    QCOMPARE(moved.size(), 1);
    QCOMPARE(shownPrompts(),
             u"Follow-up prompts 1, why, Saved from selection 2, Newer, older, Done 1, middle"_s);
    QCOMPARE(m_prompts->openCount(), 3);
    QVERIFY(m_prompts->hasDone());
    m_prompts->setQuery(u"E"_s);
    QCOMPARE(shownPrompts(), u"Saved from selection 2, Newer, older, Done 1, middle"_s);
    m_prompts->setQuery({});
    middle.toggleDone();
    QCOMPARE(moved.size(), 2);
    QCOMPARE(shownPrompts(), before);

    m_prompts->setQuery(u"middle"_s);
    addPrompt(u"not this one"_s);
    addPrompt(u"in the middle"_s);
    m_store->remove(middle);
    QCOMPARE(shownPrompts(), u"Follow-up prompts 1, in the middle"_s);
    QCOMPARE(m_prompts->openCount(), 5);
}

QTEST_GUILESS_MAIN(CardListsTest)
#include "tst_cardlists.moc"
