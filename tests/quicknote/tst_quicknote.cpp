// SPDX-License-Identifier: MIT
#include "../components/memorydesktop.h"
#include "editor/lentpasteboards.h"
#include "notes/notesstore.h"
#include "quicknote/quicknotepanel.h"
#include "quicknote/toast.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;
using Mode = QuickNoteBox::Mode;

namespace {

/// The real box over the in-memory platform.
struct World : MemoryDesktop
{
    World()
    {
        appearance.setReduceMotion(true);
        lendToEditors(engine, pasteboard, &primary);
        toast = std::make_unique<Toast>(engine, screens, windows, clock);
        box = std::make_unique<QuickNotePanel>(QuickNotePanel::Needs{.engine = engine,
                                                                     .store = *store,
                                                                     .clock = clock,
                                                                     .application = application,
                                                                     .screens = screens,
                                                                     .windows = windows,
                                                                     .sounds = sounds,
                                                                     .toast = *toast});
    }

    /// Opens the box and waits until it has the focus.
    [[nodiscard]] bool show(Mode mode) const
    {
        box->show(mode);
        return QTest::qWaitForWindowActive(box->window());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(box->window(), key, modifiers);
    }
    /// The repeats of a held key.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        for (const QEvent::Type type :
             {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent event(type, key, modifiers, u"\r"_s, true);
            QCoreApplication::sendEvent(box->window(), &event);
        }
    }
    void type(const QString &text) const
    {
        for (const QChar letter : text)
            QTest::keyClick(box->window(), letter.toLatin1());
    }
    /// What an input method shows before it commits.
    void compose(const QString &text) const
    {
        QInputMethodEvent event(text, {});
        QCoreApplication::sendEvent(box->window()->focusObject(), &event);
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList all;
        for (qsizetype i = 0; i < store->notes().count(); ++i)
            all.append(store->notes().at(i).text());
        return all;
    }
    [[nodiscard]] QString draft() const { return box->model().text(); }
    /// The text of the visible notice; empty if there is none.
    [[nodiscard]] QString notice() const
    {
        return toast->window().isVisible() ? toast->window().title() : QString();
    }

    QTemporaryDir folder;
    std::unique_ptr<NotesStore> store = NotesStore::open(folder.filePath(u"Notes.store"_s), clock).store;
    std::unique_ptr<Toast> toast;
    std::unique_ptr<QuickNotePanel> box;
};

} // namespace

/// The quick-note box as the user sees it, with real keys in the real window.
class QuickNoteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<World>(); }
    void cleanup();
    void returnKeepsANote();
    void heldReturnKeepsOneNote();
    void heldReturnDoesNotKeepAChecklist();
    void blankDraftIsNotKept_data();
    void blankDraftIsNotKept();
    void eachModeHasItsDraft();
    void reopenedBoxHasItsDraftWithTheCaretAtTheEnd();
    void closingAndSavingKeepWhatIsComposed();
    void goesWhenTheKeyboardDoes_data();
    void goesWhenTheKeyboardDoes();
    void questionOfOursLeavesItOpen();
    void standsOverTheMiddleOfThePointersScreen_data();
    void standsOverTheMiddleOfThePointersScreen();
    void fadesAndIsUsableMeanwhile();

private:
    std::unique_ptr<World> m_world;
};

void QuickNoteTest::cleanup()
{
    m_world->box.reset();
    m_world->toast.reset();
    m_world->clock.advance(1h);
    m_world.reset();
}

void QuickNoteTest::returnKeepsANote()
{
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"Plan"_s);
    m_world->press(Qt::Key_Return, Qt::ShiftModifier);
    m_world->type(u"- pears "_s);
    // Just an ordinary key of the editor.
    m_world->press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(m_world->box->isShowing());
    m_world->press(Qt::Key_Return);

    QCOMPARE(m_world->texts(), QStringList{u"Plan\n\u2022 pears"_s});
    QVERIFY(!m_world->store->notes().first()->sourceApp());
    QVERIFY(!m_world->store->hasPendingChanges());
    QVERIFY(!m_world->box->window()->isVisible());
    QVERIFY(!m_world->application.isActive());
    QCOMPARE(m_world->draft(), QString());
    QCOMPARE(m_world->notice(), u"Saved to Vesk"_s);
    QCOMPARE(m_world->sounds.played().size(), 1);
}

void QuickNoteTest::heldReturnKeepsOneNote()
{
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"tea"_s);
    QTest::keyPress(m_world->box->window(), Qt::Key_Return);
    m_world->hold(Qt::Key_Return);
    QCOMPARE(m_world->texts(), QStringList{u"tea"_s});
    // Held until another draft is shown.
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"milk"_s);
    m_world->hold(Qt::Key_Return);
    QCOMPARE(m_world->texts(), QStringList{u"tea"_s});
    QCOMPARE(m_world->draft(), u"milk"_s);
    QVERIFY(m_world->box->isShowing());
    // Line breaks repeat, and releasing Shift does not turn them into saving.
    QTest::keyPress(m_world->box->window(), Qt::Key_Return, Qt::ShiftModifier);
    m_world->hold(Qt::Key_Return, Qt::ShiftModifier);
    m_world->hold(Qt::Key_Return);
    QCOMPARE(m_world->draft(), u"milk\n\n\n"_s);
    QVERIFY(m_world->box->isShowing());
}

void QuickNoteTest::heldReturnDoesNotKeepAChecklist()
{
    QVERIFY(m_world->show(Mode::Checklist));
    m_world->type(u"milk"_s);
    QTest::keyPress(m_world->box->window(), Qt::Key_Return);
    m_world->hold(Qt::Key_Return);
    QCOMPARE(m_world->draft(), u"\u2610 milk\n\u2610 "_s);
    QVERIFY(m_world->box->isShowing());
    QVERIFY(m_world->texts().isEmpty());
    m_world->press(Qt::Key_Return);
    QCOMPARE(m_world->texts(), QStringList{u"\u2610 milk"_s});
    // Nothing repeats after saving with Control-Return, even if Control is released.
    QVERIFY(m_world->show(Mode::Checklist));
    m_world->type(u"tea"_s);
    QTest::keyPress(m_world->box->window(), Qt::Key_Return, Qt::ControlModifier);
    m_world->hold(Qt::Key_Return, Qt::ControlModifier);
    m_world->hold(Qt::Key_Return);
    QCOMPARE(m_world->store->notes().count(), 2);
    QVERIFY(m_world->draft().isEmpty());
}

void QuickNoteTest::blankDraftIsNotKept_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("note") << Mode::Note;
    QTest::newRow("checklist") << Mode::Checklist;
}

void QuickNoteTest::blankDraftIsNotKept()
{
    QFETCH(Mode, mode);
    QVERIFY(m_world->show(mode));
    if (mode == Mode::Note) {
        m_world->type(u"  "_s);
        m_world->press(Qt::Key_Return, Qt::ShiftModifier);
    }
    m_world->press(Qt::Key_Return);
    QVERIFY(m_world->box->isShowing());
    QVERIFY(m_world->texts().isEmpty());
    QVERIFY(m_world->notice().isEmpty());
    QVERIFY(m_world->sounds.played().isEmpty());
}

void QuickNoteTest::eachModeHasItsDraft()
{
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"tea"_s);
    QVERIFY(m_world->show(Mode::Checklist));
    m_world->type(u"Milk"_s);
    QVERIFY(m_world->show(Mode::Note));
    QCOMPARE(m_world->draft(), u"tea"_s);
    m_world->press(Qt::Key_Return);
    // The other draft is not the one that was kept.
    QVERIFY(m_world->show(Mode::Checklist));
    QCOMPARE(m_world->draft(), u"\u2610 Milk"_s);
    m_world->type(u"!"_s);
    m_world->press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(m_world->texts().contains(u"\u2610 Milk!"_s));
}

void QuickNoteTest::reopenedBoxHasItsDraftWithTheCaretAtTheEnd()
{
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"tea"_s);
    m_world->press(Qt::Key_Home);
    m_world->press(Qt::Key_Escape);
    QVERIFY(!m_world->box->window()->isVisible());
    QVERIFY(!m_world->application.isActive());
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"s"_s);
    QCOMPARE(m_world->draft(), u"teas"_s);
    // No later step of opening moves the caret from where the user has put it.
    m_world->press(Qt::Key_Home);
    QTest::qWait(200);
    m_world->type(u"s"_s);
    QCOMPARE(m_world->draft(), u"steas"_s);
}

void QuickNoteTest::goesWhenTheKeyboardDoes_data()
{
    QTest::addColumn<QString>("to");
    QTest::newRow("the panel") << u"panel"_s;
    QTest::newRow("the window manager closes it") << u"close"_s;
}

void QuickNoteTest::goesWhenTheKeyboardDoes()
{
    QFETCH(QString, to);
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"tea"_s);
    QWindow panel;
    if (to == u"close"_s) {
        m_world->box->window()->close();
    } else {
        panel.show();
        panel.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
    }
    QVERIFY(!m_world->box->isShowing());
    QVERIFY(!m_world->box->window()->isVisible());
    QCOMPARE(m_world->draft(), u"tea"_s);
}

/// This test's input method does not respond to requests to commit.
void QuickNoteTest::closingAndSavingKeepWhatIsComposed()
{
    QVERIFY(m_world->show(Mode::Note));
    m_world->type(u"a"_s);
    m_world->compose(u"ni"_s);
    m_world->box->close();
    QCOMPARE(m_world->draft(), u"ani"_s);
    QVERIFY(m_world->show(Mode::Note));
    m_world->compose(u"hao"_s);
    // Switching modes sets the draft aside, including the composed text.
    m_world->box->show(Mode::Checklist);
    m_world->box->show(Mode::Note);
    QCOMPARE(m_world->draft(), u"anihao"_s);
    m_world->compose(u"ma"_s);
    m_world->box->save();
    QCOMPARE(m_world->texts(), QStringList{u"anihaoma"_s});
    QCOMPARE(m_world->draft(), QString());
}

void QuickNoteTest::questionOfOursLeavesItOpen()
{
    QVERIFY(m_world->show(Mode::Note));
    QWindow question;
    question.setFlags(Qt::Dialog);
    question.show();
    question.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&question));
    QVERIFY(m_world->box->isShowing());
}

void QuickNoteTest::standsOverTheMiddleOfThePointersScreen_data()
{
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<qreal>("textScale");
    QTest::addColumn<QRectF>("frame");
    // 26 % of the height without docks is above it.
    QTest::newRow("first screen") << QPointF(100, 100) << 1.0 << QRectF(510, 504, 580, 236);
    QTest::newRow("second, with a dock") << QPointF(2000, 400) << 1.0 << QRectF(1910, 358.6, 580, 236);
    QTest::newRow("larger texts") << QPointF(100, 100) << 1.5 << QRectF(365, 386, 870, 354);
}

void QuickNoteTest::standsOverTheMiddleOfThePointersScreen()
{
    QFETCH(QPointF, pointer);
    QFETCH(qreal, textScale);
    const QRectF first(0, 0, 1600, 1000);
    const QRectF second(1600, 0, 1200, 800);
    m_world->screens.setScreens({{.frame = first, .visibleFrame = first},
                                 {.frame = second, .visibleFrame = second.adjusted(0, 10, 0, 0)}});
    m_world->screens.setMouseLocation(pointer);
    m_world->appearance.setTextFont({.family = {}, .scale = textScale});
    m_world->box->show(Mode::Note);
    QTEST(m_world->windows.frame(), "frame");
}

void QuickNoteTest::fadesAndIsUsableMeanwhile()
{
    m_world->appearance.setReduceMotion(false);
    QVERIFY(m_world->show(Mode::Note));
    QTRY_COMPARE(m_world->box->window()->opacity(), 1.0);
    m_world->press(Qt::Key_Escape);
    // The focus moves on at once, the picture disappears a little later.
    QVERIFY(!m_world->box->isShowing());
    QVERIFY(!m_world->application.isActive());
    QVERIFY(m_world->box->window()->isVisible());
    // If it is reopened before it is gone, it stays.
    m_world->box->show(Mode::Note);
    QTRY_COMPARE(m_world->box->window()->opacity(), 1.0);
    QVERIFY(m_world->box->window()->isVisible());
    m_world->box->close();
    QTRY_VERIFY(!m_world->box->window()->isVisible());
}

QTEST_MAIN(QuickNoteTest)
#include "tst_quicknote.moc"
