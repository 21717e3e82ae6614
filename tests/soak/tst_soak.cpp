// SPDX-License-Identifier: MIT
#include "editor/notetextview.h"
#include "soak/soakuser.h"
#include "soak/soakworld.h"
#include "virtualdesktop/notesfile.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <array>
#include <cstdio>
#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
/// From the sanitizer's allocator; not every GCC comes with the header.
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // NOLINT: not our name
#endif

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// How much memory the program has allocated and not released.
qint64 heapBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    return static_cast<qint64>(mallinfo2().uordblks);
#endif
}

qsizetype descriptorCount()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
}

bool hasChildren()
{
    QFile file(u"/proc/thread-self/children"_s);
    return file.open(QIODevice::ReadOnly) && !file.readAll().trimmed().isEmpty();
}

/// A number that an environment variable can set.
int number(const char *name, int usual)
{
    const int asked = qEnvironmentVariableIntValue(name);
    return asked > 0 ? asked : usual;
}

} // namespace

/// A user who does random things for a long time, compared with what the store must contain.
/// VESK_SOAK_ACTIONS requests a longer run, VESK_SOAK_SEED a different one.
class SoakTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private Q_SLOTS:
    void anythingAtAll();

private:
    void start();
    void clearAll();
    void act();
    [[nodiscard]] QString findFault();
    [[nodiscard]] QString findFaultInFile() const;

    const int m_seed = number("VESK_SOAK_SEED", 1);
    const int m_count = number("VESK_SOAK_ACTIONS", 600);
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(u"Notes.store"_s);
    SoakUser m_user{m_seed};
    std::unique_ptr<SoakWorld> m_world;
    Ledger m_ledger;
    std::chrono::microseconds m_lastEdit{};
    /// The most recent actions.
    QStringList m_history;
    int m_actions = 0;
};

/// Starts the program, the first time or again with what is in the file.
void SoakTest::start()
{
    const Date now = m_world ? m_world->clock.now() : Date{std::chrono::years{50}};
    if (m_world)
        m_world->application.hide();
    m_world.reset();
    m_world = std::make_unique<SoakWorld>(m_path, now);
    m_world->appearance.setReduceMotion(true);
    m_lastEdit = {};
}

/// Removes everything that the user has created, so that the remaining memory can be compared.
void SoakTest::clearAll()
{
    while (Note *each = m_world->store.notes().first())
        m_world->store.remove(*each);
    while (Prompt *each = m_world->store.prompts().first())
        m_world->store.remove(*each);
    QVERIFY(m_world->store.save());
    m_ledger = Ledger();
}

QString SoakTest::findFaultInFile() const
{
    const NotesFile file(m_path);
    if (file.integrity() != u"ok"_s)
        return u"the file: "_s + file.integrity();
    using Rows = QMap<QString, NotesFile::Row>;
    const auto number = [](Date date) { return QString::number(date.time_since_epoch().count()); };
    const auto flag = [](bool value) { return QString::number(int(value)); };
    Rows expected;
    const Ledger::Entries &entries = m_ledger.entries();
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const QString id = it.key().toString(QUuid::WithoutBraces);
        NotesFile::Row row{{u"id"_s, id}, {u"text"_s, it->text}, {u"createdAt"_s, number(it->createdAt)}};
        if (it->isPrompt) {
            row.insert({{u"isDone"_s, flag(it->isMarked)}, {u"isCaptured"_s, flag(!it->source.isEmpty())}});
        } else {
            row.insert({{u"updatedAt"_s, number(it->updatedAt)},
                        {u"isPinned"_s, flag(it->isMarked)},
                        {u"sourceApp"_s, it->source.value(0)},
                        {u"sourceBundleID"_s, it->source.value(1)},
                        {u"sourceTitle"_s, it->source.value(2)},
                        {u"sourceURL"_s, it->source.value(3)}});
        }
        expected.insert(id, row);
    }
    Rows found;
    for (const auto &rows : {file.notes(), file.prompts()}) {
        for (const NotesFile::Row &row : rows.value_or(QList<NotesFile::Row>()))
            found.insert(row.value(u"id"_s), row);
    }
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        if (found.take(it.key()) != *it)
            return u"the file has not what is in memory: "_s + it->value(u"text"_s);
    }
    return found.isEmpty() ? QString() : u"the file has more than what is in memory"_s;
}

QString SoakTest::findFault()
{
    PanelModel &panel = m_world->panel;
    NotesStore &store = m_world->store;
    if (m_ledger.isOpenTextChanged())
        m_lastEdit = m_world->clock.monotonic();
    if (store.hasPendingChanges() && m_world->clock.monotonic() - m_lastEdit > 500ms)
        return u"something is not saved"_s;
    const std::optional<RecordId> open = panel.openNote()->id();
    const Ledger::Entries &all = m_ledger.entries();
    for (auto it = all.begin(); it != all.end(); ++it) {
        if (it->text.trimmed().isEmpty() && it.key() != open)
            return u"a blank note stays"_s;
    }
    if (open && !all.contains(*open))
        return u"what is open is gone"_s;
    const NoteTextView *editor = panel.editor()->textView();
    if (open && editor && panel.keyboard()->isEditing() && editor->text() != all.value(*open).text)
        return u"the editor shows \"%1\", the note is \"%2\""_s.arg(editor->text(), all.value(*open).text);
    return store.hasPendingChanges() || m_actions % 10 != 0 ? QString() : findFaultInFile();
}

void SoakTest::act()
{
    constexpr qsizetype kTold = 15;
    constexpr int kActionsToRestart = 500;
    QSet<RecordId> openNotes;
    const auto keepOpen = [&] {
        if (const auto &id = m_world->panel.openNote()->id())
            openNotes.insert(*id);
    };
    keepOpen();
    Ledger::Effect effect;
    if (++m_actions % kActionsToRestart == 0)
        start();
    else
        effect = m_user.act(*m_world, m_ledger.entries());
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    keepOpen();
    m_history.append(m_user.done());
    if (m_history.size() > kTold)
        m_history.removeFirst();
    QString fault = m_ledger.follow(m_world->store, effect, openNotes, m_user.openText());
    if (fault.isEmpty())
        fault = findFault();
    const QString told =
        u"%1\nVESK_SOAK_SEED=%2, action %3. The last ones:\n%4"_s.arg(fault).arg(m_seed).arg(m_actions).arg(
            m_history.join(u'\n'));
    QVERIFY2(fault.isEmpty(), qPrintable(told));
}

void SoakTest::anythingAtAll()
{
    QTest::failOnWarning(QRegularExpression(u"Error:|oop detected"_s));
    start();
    // During the first quarter, things that are created once are still created.
    std::array<qint64, 4> heap{};
    std::array<qsizetype, 4> descriptors{};
    for (size_t quarter = 0; quarter < heap.size(); ++quarter) {
        for (int i = 0; i < m_count / 4; ++i) {
            act();
            if (QTest::currentTestFailed())
                return;
        }
        start();
        clearAll();
        QTest::qWait(500);
        heap.at(quarter) = heapBytes();
        descriptors.at(quarter) = descriptorCount();
        QCOMPARE(findFaultInFile(), QString());
    }
    // Not qInfo, which falls silent after too many warnings of the offscreen platform.
    std::printf("Seed %d, %d actions. Heap after each quarter: %lld %lld %lld %lld KiB\n", m_seed, m_actions,
                heap[0] / 1024, heap[1] / 1024, heap[2] / 1024, heap[3] / 1024);
    // Caches still grow a little, mostly those of fonts; a leak with each action would be far more.
    QVERIFY(heap[3] < heap[1] * 5 / 4);
    QVERIFY(!hasChildren());
    QVERIFY(descriptors[3] <= descriptors[1]);
    m_world.reset();
}

QTEST_MAIN(SoakTest)
#include "tst_soak.moc"
