// SPDX-License-Identifier: MIT
#include "notes/livequery.h"
#include "notes/note.h"
#include "platform/memory/memoryclock.h"

#include <QTest>

#include <random>

using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// A list that knows of the query only what its signals say.
class Mirror
{
public:
    explicit Mirror(const LiveQuery<Note> &query)
    {
        for (qsizetype i = 0; i < query.count(); ++i)
            ids.append(query.at(i).id());
        QObject::connect(&query, &LiveQueryBase::inserted, &query,
                         [&](qsizetype index) { ids.insert(index, query.at(index).id()); });
        QObject::connect(&query, &LiveQueryBase::removed, &query, [&](qsizetype index, const RecordId &id) {
            areSignalsRight &= ids.value(index) == id;
            ids.removeAt(index);
        });
        QObject::connect(&query, &LiveQueryBase::moved, &query, [&](qsizetype from, qsizetype to) {
            areSignalsRight &= from != to && ids.value(from) == query.at(to).id();
            ids.move(from, to);
        });
        QObject::connect(&query, &LiveQueryBase::changed, &query, [&](qsizetype index) {
            areSignalsRight &= ids.value(index) == query.at(index).id();
        });
    }

    QList<RecordId> ids;
    bool areSignalsRight = true;
};

QList<RecordId> idsOf(const LiveQuery<Note> &query)
{
    QList<RecordId> ids;
    for (qsizetype i = 0; i < query.count(); ++i)
        ids.append(query.at(i).id());
    return ids;
}

QList<RecordId> sortedIds(const std::vector<std::unique_ptr<Note>> &notes)
{
    std::vector<const Note *> sorted;
    sorted.reserve(notes.size());
    for (const auto &note : notes)
        sorted.push_back(note.get());
    std::ranges::sort(sorted, [](const Note *a, const Note *b) {
        return a->updatedAt() != b->updatedAt() ? a->updatedAt() > b->updatedAt() : a->id() < b->id();
    });
    QList<RecordId> ids;
    for (const Note *note : sorted)
        ids.append(note->id());
    return ids;
}

} // namespace

class TestLiveQuery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsRandomChanges_data();
    void followsRandomChanges();
};

void TestLiveQuery::followsRandomChanges_data()
{
    QTest::addColumn<int>("dates");
    QTest::newRow("many dates") << 1'000'000;
    QTest::newRow("many notes of the same date") << 4;
    QTest::newRow("one date only") << 1;
}

void TestLiveQuery::followsRandomChanges()
{
    QFETCH(int, dates);
    std::mt19937 random(20'240'229);
    const auto below = [&random](size_t limit) {
        return std::uniform_int_distribution<size_t>(0, limit - 1)(random);
    };
    MemoryClock clock;
    const auto jump = [&] {
        clock.setNow(Date{std::chrono::microseconds{below(static_cast<size_t>(dates))}});
    };
    std::vector<std::unique_ptr<Note>> notes;
    const auto makeNote = [&]() -> Note & {
        jump();
        return *notes.emplace_back(std::make_unique<Note>(clock, QString()));
    };

    constexpr int kLoaded = 50;
    std::vector<Note *> loaded;
    loaded.reserve(kLoaded);
    for (int i = 0; i < kLoaded; ++i)
        loaded.push_back(&makeNote());
    LiveQuery<Note> query(&Note::updatedAt);
    query.load(loaded);
    QCOMPARE(idsOf(query), sortedIds(notes));
    const Mirror mirror(query);

    for (int step = 0; step < 3000; ++step) {
        const size_t choice = notes.empty() ? 0 : below(10);
        if (choice < 3) {
            query.insert(makeNote());
        } else if (choice < 6) {
            const auto victim = notes.begin() + static_cast<ptrdiff_t>(below(notes.size()));
            query.remove(**victim, (*victim)->updatedAt());
            notes.erase(victim);
        } else {
            Note &note = *notes[below(notes.size())];
            const Date oldDate = note.updatedAt();
            jump();
            if (choice < 8)
                note.setText(QString());
            else
                note.setPinned(!note.isPinned());
            query.update(note, oldDate);
        }
        QVERIFY2(mirror.areSignalsRight, qPrintable(QString::number(step)));
        const QList<RecordId> expected = sortedIds(notes);
        QCOMPARE(idsOf(query), expected);
        QCOMPARE(mirror.ids, expected);
    }
    QVERIFY(!query.isEmpty() && query.first() == &query.at(0));
}

QTEST_GUILESS_MAIN(TestLiveQuery)
#include "tst_livequery.moc"
