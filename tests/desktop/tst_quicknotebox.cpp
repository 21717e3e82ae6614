// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"
#include "desktop/monitors.h"

#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Writing a note without the panel, over another application.
class TestQuickNoteBox : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void keyOpensItAndReturnKeepsTheNote_data();
    void keyOpensItAndReturnKeepsTheNote();
    void goesAndKeepsItsDraft_data();
    void goesAndKeepsItsDraft();
    void checklistKeyBeginsAChecklist();
    void draggingItsGroundMovesIt();
    void givesTheKeyboardBackToThePanel();
    void unpluggedScreenGivesItBack();
    void unwrittenNoteIsOfferedAtTheEnd_data();
    void unwrittenNoteIsOfferedAtTheEnd();

private:
    /// Opens the box with a key and waits until it has the focus; nullopt if it does not appear.
    [[nodiscard]] std::optional<Window> openBox();
    /// Limits the size of Vesk's files to this many bytes, which acts like a full disk.
    [[nodiscard]] bool limitFiles(rlim_t bytes) const;
    /// Whether no program has grabbed the keyboard.
    [[nodiscard]] bool isKeyboardFree();
};

std::optional<Window> TestQuickNoteBox::openBox()
{
    capture();
    const std::optional<Window> box = m_desktop->windows().waitViewable(kQuickNote, kBound);
    return box && m_desktop->windows().waitFocused(*box, kBound) ? box : std::nullopt;
}

bool TestQuickNoteBox::limitFiles(rlim_t bytes) const
{
    const rlimit limit{.rlim_cur = bytes, .rlim_max = RLIM_INFINITY};
    return prlimit(pid_t(m_vesk->pid()), RLIMIT_FSIZE, &limit, nullptr) == 0;
}

bool TestQuickNoteBox::isKeyboardFree()
{
    const bool isFree = m_desktop->keyboard().grab();
    m_desktop->keyboard().ungrab();
    return isFree;
}

void TestQuickNoteBox::keyOpensItAndReturnKeepsTheNote_data()
{
    QTest::addColumn<bool>("followsPointer");
    QTest::newRow("focus by clicks") << false;
    QTest::newRow("focus follows the pointer") << true;
}

void TestQuickNoteBox::keyOpensItAndReturnKeepsTheNote()
{
    QFETCH(bool, followsPointer);
    if (followsPointer)
        VERIFY_ON(*m_desktop, letFocusFollowThePointer());
    capture();
    const std::optional<Window> box = m_desktop->windows().waitViewable(kQuickNote, kBound);
    VERIFY_ON(*m_desktop, box);
    // The box may be on the screen before it has the focus; nothing that is typed goes elsewhere.
    constexpr auto kFastTyping = 33ms;
    const QString note = u"Call Ada about the lease"_s;
    for (const QChar letter : note) {
        m_desktop->keyboard().type(letter);
        QTest::qWait(int(kFastTyping.count()));
    }
    QCOMPARE(box->geometry, QRect(510, 260, 580, 236));
    QVERIFY(!m_desktop->windows().findViewable(kPanel));
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{note});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuickNote, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QVERIFY(!m_desktop->windows().findViewable(kPanel));
    QVERIFY(isEditorUntouched());
}

void TestQuickNoteBox::goesAndKeepsItsDraft_data()
{
    QTest::addColumn<QString>("by");
    QTest::newRow("Escape") << u"escape"_s;
    QTest::newRow("its key") << u"key"_s;
    QTest::newRow("a click elsewhere") << u"click"_s;
}

void TestQuickNoteBox::goesAndKeepsItsDraft()
{
    QFETCH(QString, by);
    VERIFY_ON(*m_desktop, openBox());
    // A click would overtake keys that are still held back for the box.
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [this] { return isKeyboardFree(); }));
    m_desktop->keyboard().type(u"tea"_s);
    if (by == u"escape"_s)
        m_desktop->keyboard().tap({XK_Escape});
    else if (by == u"key"_s)
        capture();
    else
        m_desktop->pointer().click(m_editor->window().geometry.bottomLeft() + QPoint(40, -40));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuickNote, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    // The editor's window may have the focus a moment before its text does.
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [this] { return isEditorUntouched(); }));
    VERIFY_ON(*m_desktop, m_editor->deselect());

    QTest::qWait(int(kCaptureGate.count()));
    VERIFY_ON(*m_desktop, openBox());
    m_desktop->keyboard().type(u" at five"_s);
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"tea at five"_s});
}

void TestQuickNoteBox::checklistKeyBeginsAChecklist()
{
    press({XK_c});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickChecklist, kBound));
    m_desktop->keyboard().type(u"Milk"_s);
    m_desktop->keyboard().tap({XK_Return});
    m_desktop->keyboard().type(u"Bread"_s);
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    // A key pressed in the same millisecond as its release counts as a repeat, and a repeated Return saves
    // nothing.
    QTest::qWait(int(kFinger.count()));
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"\u2610 Milk\n\u2610 Bread"_s});
}

void TestQuickNoteBox::draggingItsGroundMovesIt()
{
    const std::optional<Window> box = openBox();
    VERIFY_ON(*m_desktop, box);
    const QPoint ground = box->geometry.topLeft() + QPoint(300, 12);
    m_desktop->pointer().drag(ground, ground + QPoint(60, 90));
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        const std::optional<Window> moved = m_desktop->windows().findViewable(kQuickNote);
        return moved && moved->geometry == box->geometry.translated(60, 90);
    }));
    // Once released, it stays.
    m_desktop->pointer().moveTo(ground + QPoint(200, 200));
    m_desktop->keyboard().type(u"tea"_s);
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"tea"_s});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        const QList<Window> all = m_desktop->windows().all();
        return std::ranges::any_of(all, [&](const Window &window) {
            return window.id == box->id && window.geometry == box->geometry.translated(60, 90);
        });
    }));
}

void TestQuickNoteBox::givesTheKeyboardBackToThePanel()
{
    togglePanel();
    const auto panel = m_desktop->windows().waitFocused(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    VERIFY_ON(*m_desktop, openBox());
    m_desktop->keyboard().tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuickNote, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
}

void TestQuickNoteBox::unpluggedScreenGivesItBack()
{
    const QRect left(0, 0, 800, 1000);
    Monitors monitors(m_desktop->display());
    monitors.set({left, QRect(800, 0, 800, 700)});
    m_desktop->pointer().moveTo(QPoint(1200, 400));
    const std::optional<Window> box = openBox();
    VERIFY_ON(*m_desktop, box);
    QVERIFY(!left.intersects(box->geometry));
    m_desktop->keyboard().type(u"tea"_s);
    monitors.set({left});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        const std::optional<Window> moved = m_desktop->windows().findViewable(kQuickNote);
        return moved && left.contains(moved->geometry);
    }));
    m_desktop->keyboard().type(u" at five"_s);
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, waitNotes({u"tea at five"_s}));
}

void TestQuickNoteBox::unwrittenNoteIsOfferedAtTheEnd_data()
{
    QTest::addColumn<qint64>("pages");
    QTest::newRow("another program holds the file") << qint64(-1);
    for (const qint64 pages : {0, 1})
        QTest::addRow("the disk is full after %lld more pages", pages) << pages;
}

void TestQuickNoteBox::unwrittenNoteIsOfferedAtTheEnd()
{
    QFETCH(const qint64, pages);
    const QString note = u"Call Ada about the lease"_s;
    VERIFY_ON(*m_desktop, openBox());
    m_desktop->keyboard().type(note);
    const QString path = m_desktop->notes().path();
    std::optional<SQLite::Database> holder;
    if (pages < 0)
        holder.emplace(path.toStdString(), SQLite::OPEN_READWRITE).exec("BEGIN IMMEDIATE");
    else
        QVERIFY(limitFiles(QFileInfo(path + u"-wal"_s).size() + 100 + pages * 4200));
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kNotSaved, kBound));
    QVERIFY(m_desktop->notes().texts().isEmpty());

    m_vesk->signal(SIGTERM);
    const std::optional<Window> offer =
        m_desktop->windows().waitViewableOf(m_vesk->pid(), u"not saved"_s, kBound);
    VERIFY_ON(*m_desktop, offer);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*offer, kBound));
    // What the user was typing answers nothing.
    for (const xcb_keysym_t key : {XK_space, XK_Tab, XK_Return})
        m_desktop->keyboard().tap({key}, kFinger);
    QTest::qWait(1000);
    QVERIFY(m_vesk->isRunning());
    QVERIFY(m_desktop->display().readSelection("CLIPBOARD", 500ms) != note);
    // Escape answers nothing; the first button copies.
    m_desktop->keyboard().tap({XK_Escape});
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        return m_desktop->display().readSelection("CLIPBOARD", 500ms) == note;
    }));
    QVERIFY(m_vesk->isRunning());

    // When the disk is fine again, waiting or quitting writes it.
    holder.reset();
    if (pages >= 0) {
        QVERIFY(limitFiles(RLIM_INFINITY));
        VERIFY_ON(*m_desktop, waitNotes({note}));
    }
    m_vesk->signal(SIGTERM);
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_vesk->exitCode(), 0);
    QCOMPARE(m_desktop->notes().texts(), QStringList{note});
}

DESKTOP_TEST_MAIN(TestQuickNoteBox)
#include "tst_quicknotebox.moc"
