// SPDX-License-Identifier: MIT
#include "capture/selectionreader.h"
#include "commands/veskservices.h"
#include "components/surroundings.h"
#include "input/hotkeytable.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryapplication.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"
#include "platform/memory/memorykeyboard.h"
#include "platform/memory/memorypasteboard.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorysounds.h"
#include "platform/memory/memorywindows.h"
#include "platform/memory/memoryworkspace.h"
#include "quicknote/toast.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// Keeps the store's file from being written, as another program's transaction does.
class WriteLock
{
public:
    explicit WriteLock(const QString &path)
        : m_database(path.toStdString(), SQLite::OPEN_READWRITE)
    {
        m_database.exec("BEGIN IMMEDIATE");
    }

private:
    SQLite::Database m_database;
};

/// The whole program but for its platform.
struct World
{
    QTemporaryDir folder;
    MemoryClock clock;
    NotesStore::OpenResult opened = NotesStore::open(folder.filePath(u"Notes.store"_s), clock);
    NotesStore &store = *opened.store;
    MemoryAccessibility accessibility{clock};
    MemoryWorkspace workspace;
    MemoryAppearance appearance;
    MemoryApplication application;
    MemoryDefaults defaults;
    MemoryHotKeys hotKeys;
    MemoryScreens screens;
    MemorySounds sounds;
    MemoryWindows windows{screens};
    QQmlEngine engine;
    MemoryPasteboard pasteboard;
    MemoryEventPoster poster;
    MemoryEventTap tap;
    PasteboardWatcher watcher{pasteboard, clock};
    SelectionReader reader{{.accessibility = accessibility,
                            .workspace = workspace,
                            .pasteboard = pasteboard,
                            .watcher = watcher,
                            .poster = poster,
                            .tap = tap,
                            .clock = clock}};
    PanelModel panel{store, clock, defaults, application, accessibility};
    std::unique_ptr<PanelWindow> panelWindow;
    std::unique_ptr<Toast> toast;
    std::unique_ptr<VeskServices> services;

    World()
    {
        lendToEngine(engine, appearance, workspace, windows);
        panelWindow = std::make_unique<PanelWindow>(engine, panel, application, screens, windows);
        toast = std::make_unique<Toast>(engine, screens, windows, clock);
        services = std::make_unique<VeskServices>(VeskServices::Needs{.clock = clock,
                                                                      .hotKeys = hotKeys,
                                                                      .accessibility = accessibility,
                                                                      .sounds = sounds,
                                                                      .store = store,
                                                                      .reader = reader,
                                                                      .panel = panel,
                                                                      .panelWindow = *panelWindow,
                                                                      .toast = *toast});
        services->start();
        workspace.setFrontmostApplication(RunningApplication{.processIdentifier = 4711,
                                                             .localizedName = u"Editor"_s,
                                                             .bundleIdentifier = u"org.example.Editor"_s});
    }

    /// Selects a text in the application that the user works in.
    void select(const QString &text)
    {
        const AccessibleElement field{.processIdentifier = 4711, .address = u"field"_s};
        accessibility.setElement(field, {.role = u"text"_s, .selectedText = text, .url = {}, .parent = {}});
        accessibility.setFocusedElement(field);
    }

    void press(const HotKeyRow &row) { QVERIFY(hotKeys.press(row.combination)); }

    /// The message on the screen; empty if there is none.
    [[nodiscard]] static QString notice()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (const QWindow *window : windows) {
            if (window->isVisible() && (window->flags() & Qt::WindowDoesNotAcceptFocus))
                return window->title();
        }
        return {};
    }

    [[nodiscard]] QStringList texts()
    {
        QStringList texts;
        for (qsizetype i = 0; i < store.notes().count(); ++i)
            texts.append(store.notes().at(i).text());
        return texts;
    }
};

} // namespace

/// What the global keys do.
class TestVeskServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
    void captureKeepsTextAndSource();
    void secondPressWithinTwoSecondsIsIgnored();
    void clockSetBackDoesNotLockTheKey();
    void sourceIsOfTheKeyPress();
    void newestTextIsNotKeptTwice();
    void appendGoesToTheNoteChangedLast();
    void tooLongTextIsRefused();
    void failedSaveIsNotConfirmed();
    void nothingSelectedOpensTheComposer();
    void withoutTrustNothingIsReadAndTheQuestionComesOnce();
    void openKeyTogglesThePanel();
};

void TestVeskServices::captureKeepsTextAndSource()
{
    World world;
    world.select(u" Lemon tree \n"_s);
    world.accessibility.setFocusedWindowTitle(4711, u"garden.txt"_s);
    world.press(hotkeytable::kQuickNote);
    QCOMPARE(world.texts(), QStringList{u"Lemon tree"_s});
    QCOMPARE(world.store.notes().first()->sourceApp(), u"Editor"_s);
    QCOMPARE(world.store.notes().first()->sourceBundleID(), u"org.example.Editor"_s);
    QCOMPARE(world.store.notes().first()->sourceTitle(), u"garden.txt"_s);
    QVERIFY(!world.store.hasPendingChanges());
    QCOMPARE(World::notice(), u"Saved to Vesk"_s);
    QCOMPARE(world.sounds.played(), QList{Sounds::Sound::Tink});
    QVERIFY(!world.panelWindow->isShown());
}

void TestVeskServices::secondPressWithinTwoSecondsIsIgnored()
{
    World world;
    world.select(u"one"_s);
    world.press(hotkeytable::kQuickNote);
    world.select(u"two"_s);
    world.clock.advance(1500ms);
    world.press(hotkeytable::kQuickNote);
    world.press(hotkeytable::kAppend);
    QCOMPARE(world.texts(), QStringList{u"one"_s});
    world.clock.advance(500ms);
    world.press(hotkeytable::kQuickNote);
    QCOMPARE(world.texts(), (QStringList{u"two"_s, u"one"_s}));
}

void TestVeskServices::clockSetBackDoesNotLockTheKey()
{
    World world;
    world.select(u"one"_s);
    world.press(hotkeytable::kQuickNote);
    world.clock.setNow(world.clock.now() - 3h);
    world.select(u"two"_s);
    world.press(hotkeytable::kQuickNote);
    QCOMPARE(world.texts().size(), 2);
}

void TestVeskServices::sourceIsOfTheKeyPress()
{
    World world;
    world.select(u"text"_s);
    world.accessibility.setDelay(50ms);
    world.press(hotkeytable::kQuickNote);
    world.workspace.setFrontmostApplication(
        RunningApplication{.processIdentifier = 1, .localizedName = u"Other"_s, .bundleIdentifier = {}});
    QVERIFY(world.texts().isEmpty());
    world.clock.advance(200ms);
    QCOMPARE(world.texts(), QStringList{u"text"_s});
    QCOMPARE(world.store.notes().first()->sourceApp(), u"Editor"_s);
}

void TestVeskServices::newestTextIsNotKeptTwice()
{
    World world;
    for (const QString &text : {u"A"_s, u"A"_s, u"B"_s, u"A"_s}) {
        world.select(text);
        world.press(hotkeytable::kQuickNote);
        world.clock.advance(3s);
    }
    QCOMPARE(world.texts(), (QStringList{u"A"_s, u"B"_s, u"A"_s}));
    world.press(hotkeytable::kQuickNote);
    QCOMPARE(World::notice(), u"Already in Vesk"_s);
    QCOMPARE(world.sounds.played().size(), 5);
}

void TestVeskServices::appendGoesToTheNoteChangedLast()
{
    World world;
    world.select(u"first"_s);
    world.press(hotkeytable::kAppend);
    QCOMPARE(World::notice(), u"Saved to Vesk"_s);
    world.clock.advance(3s);
    world.select(u"more"_s);
    world.press(hotkeytable::kAppend);
    QCOMPARE(world.texts(), QStringList{u"first\n\nmore"_s});
    QCOMPARE(World::notice(), u"Added to “first”"_s);
    world.store.notes().first()->setText({});
    world.clock.advance(3s);
    world.press(hotkeytable::kAppend);
    QCOMPARE(World::notice(), u"Added to “New Note”"_s);
}

void TestVeskServices::tooLongTextIsRefused()
{
    World world;
    // Two bytes each: the text is over the limit in bytes, not in characters.
    world.select(QString(kMaximumTextBytes / 2, u'ä'));
    world.press(hotkeytable::kQuickNote);
    QCOMPARE(World::notice(), u"Saved to Vesk"_s);
    world.clock.advance(3s);
    world.select(QString(kMaximumTextBytes / 2 + 1, u'ä'));
    world.press(hotkeytable::kQuickNote);
    QCOMPARE(world.store.notes().count(), 1);
    QCOMPARE(World::notice(), u"The selection is too long to keep"_s);
}

void TestVeskServices::failedSaveIsNotConfirmed()
{
    World world;
    world.select(u"kept in memory"_s);
    {
        const WriteLock lock(world.folder.filePath(u"Notes.store"_s));
        world.press(hotkeytable::kQuickNote);
        QCOMPARE(World::notice(), u"Not saved yet, Vesk keeps trying"_s);
        QVERIFY(world.sounds.played().isEmpty());
        QVERIFY(world.store.hasPendingChanges());
    }
    world.clock.advance(1min);
    QVERIFY(!world.store.hasPendingChanges());
}

void TestVeskServices::nothingSelectedOpensTheComposer()
{
    World world;
    world.press(hotkeytable::kQuickNote);
    // The application has its time to copy.
    world.clock.advance(500ms);
    QVERIFY(world.panelWindow->isShown());
    QCOMPARE(world.panel.requestedField(), PanelModel::Field::Composer);
    QVERIFY(world.texts().isEmpty());
}

void TestVeskServices::withoutTrustNothingIsReadAndTheQuestionComesOnce()
{
    World world;
    world.select(u"private"_s);
    world.accessibility.setTrusted(false);
    world.press(hotkeytable::kQuickNote);
    world.clock.advance(3s);
    world.press(hotkeytable::kQuickNote);
    QVERIFY(world.texts().isEmpty());
    QCOMPARE(world.accessibility.askCount(), 1);
    QVERIFY(world.panelWindow->isShown());
}

void TestVeskServices::openKeyTogglesThePanel()
{
    World world;
    world.press(hotkeytable::kOpen);
    QVERIFY(world.panelWindow->isShown());
    world.press(hotkeytable::kOpen);
    QVERIFY(!world.panelWindow->isShown());
    world.press(hotkeytable::kWrite);
    QVERIFY(world.panelWindow->isShown());
    QCOMPARE(world.panel.requestedField(), PanelModel::Field::Composer);
}

QTEST_MAIN(TestVeskServices)

#include "tst_veskservices.moc"
