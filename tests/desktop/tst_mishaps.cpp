// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/files.h"
#include "virtualdesktop/texteditor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <algorithm>
#include <csignal>
#include <random>
#include <sys/resource.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// The call that adds a note.
QDBusMessage addition(const QString &text)
{
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.vesk.Vesk"_s, u"/org/vesk/Vesk"_s,
                                                       u"org.vesk.Vesk"_s, u"AddNote"_s);
    call.setAutoStartService(false);
    call.setArguments({text});
    return call;
}

} // namespace

/// Whether Vesk keeps its promises when it is killed or disconnected, cannot open its store, is busy, or when
/// a key is released before its press is processed.
class TestMishaps : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void killedAtTheNoticeLosesNothing();
    void killedAtAnyMomentLosesNothing();
    void endedWhileTypingLosesNothing_data();
    void endedWhileTypingLosesNothing();
    void keyUpBeforeItsPressIsHeardFiresAgain();
    void unusableStoreIsReportedAndLeftAlone();
    void scriptAddsWhileTheUserWrites();
    void fullDiskIsReportedAndNothingIsLost();

private:
    [[nodiscard]] static int rounds();

    /// Copies the whole text of the focused field until it is this one.
    [[nodiscard]] bool copyUntil(const QString &text);

    /// Adds one note after another until Vesk is killed, after `life`. Returns the confirmed ones; `last` is
    /// the unconfirmed one.
    [[nodiscard]] QStringList addUntilKilled(std::chrono::microseconds life, int &number, QString &last);

    QStringList m_lines;
    std::unique_ptr<TextEditor> m_editor;
};

/// VESK_KILL_ROUNDS requests a longer run.
int TestMishaps::rounds()
{
    constexpr int kUsual = 5;
    const int asked = qEnvironmentVariableIntValue("VESK_KILL_ROUNDS");
    return asked > 0 ? asked : kUsual;
}

void TestMishaps::init()
{
    m_lines.clear();
    for (int round = 0; round < rounds(); ++round)
        m_lines.append(u"Line %1 of a list that must be whole"_s.arg(round));
    VeskTest::init();
    QVERIFY(m_desktop);
    m_editor = TextEditor::open(*m_desktop, m_lines);
    VERIFY_ON(*m_desktop, m_editor);
}

void TestMishaps::cleanup()
{
    m_editor.reset();
    VeskTest::cleanup();
}

bool TestMishaps::copyUntil(const QString &text)
{
    return m_desktop->display().waitUntil(kBound, [&] {
        m_desktop->keyboard().tap({XK_Control_L, XK_a});
        m_desktop->keyboard().tap({XK_Control_L, XK_c});
        return m_desktop->display().readSelection("CLIPBOARD", kFinger) == text;
    });
}

QStringList TestMishaps::addUntilKilled(std::chrono::microseconds life, int &number, QString &last)
{
    const QString name = u"mishaps%1"_s.arg(number);
    QStringList confirmed;
    {
        QDBusConnection bus = QDBusConnection::connectToBus(m_desktop->busAddress(), name);
        // In another thread, because this one waits for the answers.
        std::thread killer([life, process = pid_t(m_vesk->pid())] {
            std::this_thread::sleep_for(life);
            ::kill(process, SIGKILL);
        });
        while (true) {
            last = u"Note %1"_s.arg(++number);
            if (bus.call(addition(last)).type() != QDBusMessage::ReplyMessage)
                break;
            confirmed.append(last);
        }
        killer.join();
    }
    QDBusConnection::disconnectFromBus(name);
    return confirmed;
}

void TestMishaps::killedAtAnyMomentLosesNothing()
{
    std::mt19937 random(20'261'125);
    QStringList kept;
    int confirmedCount = 0;
    int number = 0;
    // If the machine is too slow to confirm anything before the kill, allow more time.
    unsigned longest = 300'000;
    for (int round = 0; round < rounds() || confirmedCount == 0; ++round) {
        QVERIFY(startVesk());
        QString last;
        const QStringList confirmed =
            addUntilKilled(std::chrono::microseconds(random() % longest), number, last);
        if (confirmed.isEmpty())
            longest *= 2;
        QVERIFY(m_vesk->waitForExit(kBound));
        confirmedCount += int(confirmed.size());
        kept += confirmed;
        const QStringList found = m_desktop->notes().texts();
        // The note in progress may be missing or present, but complete.
        if (found.size() == kept.size() + 1)
            kept.append(last);
        QCOMPARE(found, kept);
        QCOMPARE(m_desktop->notes().integrity(), u"ok"_s);
    }
    qInfo("%d notes confirmed, %d kills.", confirmedCount, rounds());
}

void TestMishaps::killedAtTheNoticeLosesNothing()
{
    for (int round = 0; round < rounds(); ++round) {
        m_vesk = m_desktop->startVesk();
        QVERIFY(m_vesk);
        VERIFY_ON(*m_desktop, m_editor->selectLine(round));
        capture();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
        m_vesk->kill();
        QCOMPARE(m_desktop->notes().texts(), m_lines.mid(0, round + 1));
    }
    QCOMPARE(m_desktop->notes().integrity(), u"ok"_s);

    // The next Vesk accepts the file as it is.
    QVERIFY(startVesk());
    QCOMPARE(m_desktop->notes().texts(), m_lines);
}

void TestMishaps::endedWhileTypingLosesNothing_data()
{
    QTest::addColumn<bool>("losesItsDisplay");
    QTest::newRow("told to quit") << false;
    QTest::newRow("cut off from the display") << true;
}

/// Much sooner than typing in a note is saved automatically.
void TestMishaps::endedWhileTypingLosesNothing()
{
    QFETCH(bool, losesItsDisplay);
    QVERIFY(startVesk());
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    togglePanel();
    const auto panel = m_desktop->windows().waitFocused(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    Keyboard &keyboard = m_desktop->keyboard();
    keyboard.tap({XK_Down}, kFinger);
    keyboard.tap({XK_Return}, kFinger);
    const QString typed = m_lines.at(0) + u" more"_s;
    // The editor takes the focus once it is there.
    VERIFY_ON(*m_desktop, copyUntil(m_lines.at(0)));
    keyboard.tap({XK_End}, kFinger);
    keyboard.type(u" more"_s);
    VERIFY_ON(*m_desktop, copyUntil(typed));
    if (losesItsDisplay) {
        xcb_kill_client(m_desktop->display().xcb(), panel->id);
        xcb_flush(m_desktop->display().xcb());
    } else {
        m_vesk->signal(SIGTERM);
    }
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{typed});
}

/// A macro keyboard releases the key before Vesk learns that it was pressed.
void TestMishaps::keyUpBeforeItsPressIsHeardFiresAgain()
{
    QVERIFY(startVesk());
    const auto togglePanel = [this] { m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}); };
    for (int round = 0; round < 2; ++round) {
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
}

void TestMishaps::unusableStoreIsReportedAndLeftAlone()
{
    const QString store = m_desktop->notes().path();
    const QString rubbish = u"No database, but dear to someone.\n"_s.repeated(99);
    QVERIFY(!m_desktop->writeFile(u"data/Vesk/Notes.store"_s, rubbish).isEmpty());

    m_vesk = m_desktop->run(VirtualDesktop::veskProgram());
    QVERIFY(m_vesk);
    const std::optional<Window> window = m_desktop->windows().waitViewableOf(m_vesk->pid(), {}, kBound);
    QVERIFY2(window, qPrintable(m_vesk->errorOutput()));
    QVERIFY2(m_vesk->errorOutput().contains(u"Could not open the notes store: "_s),
             qPrintable(m_vesk->errorOutput()));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*window, kBound));
    // A key that was meant for another window closes nothing, so the window ignores keys at first.
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [this] {
        m_desktop->keyboard().tap({XK_Escape});
        return m_vesk->waitForExit(std::chrono::milliseconds(1000));
    }));
    QCOMPARE(m_vesk->exitCode(), 1);
    QCOMPARE(contentsOf(store), rubbish.toUtf8());
}

/// A script adds fifty notes per second while the panel is open and in use. VESK_LOAD_SECONDS requests a
/// longer run.
void TestMishaps::scriptAddsWhileTheUserWrites()
{
    constexpr int kUsualSeconds = 5;
    constexpr int kPerSecond = 50;
    const int asked = qEnvironmentVariableIntValue("VESK_LOAD_SECONDS");
    const int seconds = asked > 0 ? asked : kUsualSeconds;
    QVERIFY(startVesk());
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"write"_s}));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));

    const QDBusConnection bus = QDBusConnection::connectToBus(m_desktop->busAddress(), u"load"_s);
    QStringList added;
    QStringList written;
    QList<QDBusPendingCall> answers;
    auto next = std::chrono::steady_clock::now();
    for (int second = 0; second < seconds; ++second) {
        for (int i = 0; i < kPerSecond; ++i) {
            added.append(u"Note %1"_s.arg(added.size()));
            answers.append(bus.asyncCall(addition(added.constLast())));
            // The script does not wait for the program that it loads.
            std::this_thread::sleep_until(next += std::chrono::milliseconds(1000 / kPerSecond));
        }
        written.append(u"written %1"_s.arg(second));
        m_desktop->keyboard().type(written.constLast());
        m_desktop->keyboard().tap({XK_Return}, kFinger);
        // The panel responds whatever else is happening.
        VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
            return m_desktop->notes().texts().contains(written.constLast());
        }));
    }
    for (QDBusPendingCall &each : answers) {
        each.waitForFinished();
        QVERIFY2(!each.isError(), qPrintable(each.error().message()));
    }
    // Every note exists exactly once, and the script's are in order.
    QStringList found = m_desktop->notes().texts();
    QStringList foundWritten;
    std::ranges::copy_if(found, std::back_inserter(foundWritten),
                         [](const QString &each) { return each.startsWith(u"written"_s); });
    found.removeIf([](const QString &each) { return each.startsWith(u"written"_s); });
    QCOMPARE(found, added);
    QCOMPARE(foundWritten, written);
    QCOMPARE(m_desktop->notes().integrity(), u"ok"_s);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    QDBusConnection::disconnectFromBus(u"load"_s);
}

/// A file size limit acts like a full disk.
void TestMishaps::fullDiskIsReportedAndNothingIsLost()
{
    QVERIFY(startVesk());
    const QString program = VirtualDesktop::veskProgram();
    QVERIFY(runToEnd(program, {u"add"_s, u"before"_s}));
    rlimit usual = {};
    const auto process = pid_t(m_vesk->pid());
    QCOMPARE(::prlimit(process, RLIMIT_FSIZE, nullptr, &usual), 0);
    const rlimit none{.rlim_cur = 0, .rlim_max = usual.rlim_max};
    QCOMPARE(::prlimit(process, RLIMIT_FSIZE, &none, nullptr), 0);
    QVERIFY(!runToEnd(program, {u"add"_s, u"while it is full"_s}));

    // When Vesk is told to quit, a window offers what is pending. Its list includes what arrives later.
    m_vesk->signal(SIGTERM);
    const auto isTitled = [](const Window &window) { return window.title.contains(u"not saved"_s); };
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        return m_desktop->windows().findViewableIf(isTitled).has_value();
    }));
    QVERIFY(!runToEnd(program, {u"add"_s, u"while it ends"_s}));
    QVERIFY(!runToEnd(program, {u"toggle"_s}));
    VERIFY_ON(*m_desktop, !m_desktop->windows().findViewable(kPanel));
    // Copy has the focus once the keyboard has been quiet.
    const auto window = m_desktop->windows().findViewableIf(isTitled);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*window, kBound));
    QTest::qWait(1000);
    m_desktop->keyboard().tap({XK_space}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        return m_desktop->display().readSelection("CLIPBOARD", kFinger)
               == u"while it is full\n\nwhile it ends"_s;
    }));

    // Once there is space, the next attempt writes everything, and Vesk exits.
    QCOMPARE(::prlimit(process, RLIMIT_FSIZE, &usual, nullptr), 0);
    QVERIFY(runToEnd(program, {u"add"_s, u"last"_s}));
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_vesk->exitCode(), 0);
    QCOMPARE(m_desktop->notes().texts(),
             (QStringList{u"before"_s, u"while it is full"_s, u"while it ends"_s, u"last"_s}));
}

DESKTOP_TEST_MAIN(TestMishaps)
#include "tst_mishaps.moc"
