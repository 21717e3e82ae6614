// SPDX-License-Identifier: MIT
#include "desktop/clipboardmanager.h"
#include "desktop/heartbeat.h"
#include "desktop/vesktest.h"
#include "virtualdesktop/clipboardholder.h"
#include "virtualdesktop/texteditor.h"

#include <QElapsedTimer>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// The minimum number of answers that Vesk gives during a capture if its event loop runs while it waits.
/// Without a wait, up to five arrive before the box is open; with one, about a hundred.
constexpr int kAnswers = 10;

const ClipboardHolder::Forms kCopied{{"UTF8_STRING", "copied before"}, {"text/html", "<i>copied</i> before"}};

} // namespace

/// Captures while something else on the desktop is broken: they end with the note or with the quick-note box,
/// Vesk stays responsive meanwhile, and the clipboard is unchanged.
class TestFaults : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() {} // The functions differ in what their desktops lack.
    void cleanup();
    void clipboardsOwnerHangs();
    void applicationHangsAndRecovers();
    void applicationEndsWhileItIsRead_data();
    void applicationEndsWhileItIsRead();
    void noApplicationIsInFront();
    void accessibilityBusIsMissing();
    void screenIsLocked();
    void soundServerHangs();
    void extensionOfTheServerIsMissing();
    void textOutlivesVesk_data();
    void textOutlivesVesk();

private:
    enum class Outcome {
        Note,
        Fallback,
        None
    };

    [[nodiscard]] QString setUp(const VirtualDesktop::Lacks &lacks = {});
    /// Presses the capture key, calls `meanwhile`, and waits for the outcome.
    [[nodiscard]] Outcome capture(const std::function<void()> &meanwhile = {});
    /// What is wrong with Vesk or the clipboard after a capture; empty if nothing is.
    [[nodiscard]] QString complaint();
    /// Whether Vesk answers while it waits in a capture that ends with the box, which is open and stays open.
    /// Retried if the machine is too busy to call often enough.
    [[nodiscard]] bool answersMeanwhile();
    [[nodiscard]] std::optional<Window> veskWindow() const;
    void dismissFallback();

    const QStringList m_lines = {u"Water the lemon tree on the balcony"_s, u"Ask about the train to Ghent"_s};
    std::unique_ptr<ClipboardHolder> m_clipboard;
    std::unique_ptr<TextEditor> m_editor;
    QElapsedTimer m_sinceCapture;
    /// Vesk's answers between the key of the last capture and its end.
    int m_answers = 0;
};

QString TestFaults::setUp(const VirtualDesktop::Lacks &lacks)
{
    QString problem;
    m_desktop = VirtualDesktop::start(problem, lacks);
    if (!m_desktop)
        return problem;
    m_clipboard = ClipboardHolder::hold(m_desktop->displayName(), kCopied);
    if (!m_clipboard || !m_desktop->prepareUser())
        return u"The user could not be prepared."_s;
    m_editor = startVesk() ? TextEditor::open(*m_desktop, m_lines) : nullptr;
    if (!m_editor)
        return u"Vesk or the editor did not start."_s;
    if (!m_editor->selectLine(0) || capture() != Outcome::Note)
        return u"Not even an ordinary capture works."_s;
    return {};
}

void TestFaults::cleanup()
{
    m_editor.reset();
    m_clipboard.reset();
    VeskTest::cleanup();
    m_sinceCapture.invalidate();
}

std::optional<Window> TestFaults::veskWindow() const
{
    return m_desktop->windows().findViewableIf([this](const Window &window) {
        return window.pid == m_vesk->pid() && window.title != kSaved && window.title != kAlready;
    });
}

TestFaults::Outcome TestFaults::capture(const std::function<void()> &meanwhile)
{
    if (m_sinceCapture.isValid() && !m_sinceCapture.hasExpired(kCaptureGate.count()))
        QTest::qWait(int(kCaptureGate.count() - m_sinceCapture.elapsed()));
    const qsizetype before = m_desktop->notes().texts().size();
    Heartbeat heartbeat(m_desktop->busAddress());
    Outcome outcome = Outcome::None;
    press({XK_n});
    m_sinceCapture.start();
    const int answersBefore = heartbeat.answers();
    if (meanwhile)
        meanwhile();
    static_cast<void>(m_desktop->display().waitUntil(kBound, [&] {
        if (veskWindow())
            outcome = Outcome::Fallback;
        else if (m_desktop->notes().texts().size() > before)
            outcome = Outcome::Note;
        return outcome != Outcome::None;
    }));
    m_answers = heartbeat.answers() - answersBefore;
    return outcome;
}

QString TestFaults::complaint()
{
    for (const auto &[form, bytes] : kCopied.asKeyValueRange()) {
        if (m_desktop->display().readForm("CLIPBOARD", form.constData(), kBound) != bytes)
            return u"%1 is no longer on the clipboard."_s.arg(QString::fromLatin1(form));
    }
    return m_vesk->isRunning() ? QString() : u"Vesk has ended."_s;
}

bool TestFaults::answersMeanwhile()
{
    constexpr int kAttempts = 10;
    for (int attempt = 0; attempt < kAttempts && m_answers < kAnswers; ++attempt) {
        dismissFallback();
        if (capture() != Outcome::Fallback)
            return false;
    }
    return m_answers >= kAnswers;
}

void TestFaults::dismissFallback()
{
    if (const auto window = veskWindow())
        static_cast<void>(m_desktop->windows().waitFocused(*window, kBound));
    m_desktop->keyboard().tap({XK_Escape}, kFinger);
    static_cast<void>(m_desktop->display().waitUntil(kBound, [this] { return !veskWindow(); }));
}

void TestFaults::clipboardsOwnerHangs()
{
    QCOMPARE(setUp(), QString());
    m_clipboard->setHanging(true);
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    QCOMPARE(capture(), Outcome::Note);
    VERIFY_ON(*m_desktop, m_editor->deselect());
    QCOMPARE(capture(), Outcome::Fallback);
    m_clipboard->setHanging(false);
    QCOMPARE(complaint(), QString());
}

void TestFaults::applicationHangsAndRecovers()
{
    QCOMPARE(setUp(), QString());
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    m_editor->process().signal(SIGSTOP);
    // An impatient second press is ignored, and does not close what the first one opens.
    QCOMPARE(capture([this] { press({XK_n}); }), Outcome::Fallback);
    QCOMPARE(complaint(), QString());
    VERIFY_ON(*m_desktop, veskWindow());
    VERIFY_ON(*m_desktop, answersMeanwhile());
    dismissFallback();

    // The user copies something else, and then the application recovers and does everything that it was told.
    const ClipboardHolder::Forms newer{{"UTF8_STRING", "copied meanwhile"}};
    m_clipboard = ClipboardHolder::hold(m_desktop->displayName(), newer);
    m_editor->process().signal(SIGCONT);
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
    QTest::qWait(300); // Undoing takes a moment.
    QCOMPARE(m_desktop->display().readSelection("CLIPBOARD", kBound), u"copied meanwhile"_s);
}

void TestFaults::applicationEndsWhileItIsRead_data()
{
    QTest::addColumn<bool>("hangs");
    QTest::newRow("at the press") << false;
    QTest::newRow("while Vesk waits for it") << true;
}

void TestFaults::applicationEndsWhileItIsRead()
{
    QFETCH(const bool, hangs);
    QCOMPARE(setUp(), QString());
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    if (hangs)
        m_editor->process().signal(SIGSTOP);
    const Outcome outcome = capture([&] {
        if (hangs)
            QTest::qWait(int(kFinger.count()));
        m_editor->process().kill();
    });
    QVERIFY(outcome == Outcome::Fallback || (outcome == Outcome::Note && !hangs));
    QCOMPARE(complaint(), QString());
    const QStringList texts = m_desktop->notes().texts();
    QVERIFY(texts.size() == 1 || texts.constLast() == m_lines.at(1));
}

void TestFaults::noApplicationIsInFront()
{
    QCOMPARE(setUp(), QString());
    const Window window = m_editor->window();
    m_editor.reset();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(window.title, kBound));
    QCOMPARE(capture(), Outcome::Fallback);
    QCOMPARE(complaint(), QString());
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
}

void TestFaults::accessibilityBusIsMissing()
{
    QCOMPARE(setUp({.accessibilityBus = true, .extension = {}}), QString());
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    QCOMPARE(capture(), Outcome::Note);
    QCOMPARE(complaint(), QString());
    QCOMPARE(m_desktop->notes().texts().constLast(), m_lines.at(1));
    VERIFY_ON(*m_desktop, m_editor->deselect());
    QCOMPARE(capture(), Outcome::Fallback);
    QCOMPARE(complaint(), QString());
}

/// A lock screen only grabs the keyboard: the editor behind it still has its selection.
void TestFaults::screenIsLocked()
{
    // Over the accessibility bus, the editor reports no selection while the keyboard is grabbed.
    QCOMPARE(setUp({.accessibilityBus = true, .extension = {}}), QString());
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    QTest::qWait(int(kCaptureGate.count()));
    const std::unique_ptr<DisplayConnection> lock = DisplayConnection::open(m_desktop->displayName());
    QVERIFY(lock);
    Keyboard lockKeyboard(*lock);
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] { return lockKeyboard.grab(); }));
    for (const Keys &keys : {Keys{XK_n}, Keys{XK_t}, Keys{XK_Shift_L, XK_c}})
        press(keys);
    tapShiftTwice();
    // Vesk's answer comes after all of that.
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"keys"_s}));
    VERIFY_ON(*m_desktop, !veskWindow());
    lockKeyboard.ungrab();

    // If one of them had been heard, these would follow too soon.
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    tapShiftTwice();
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(
                              kBound, [this] { return !m_desktop->notes().promptTexts().isEmpty(); }));
    QCOMPARE(m_desktop->notes().promptTexts(), QStringList{m_lines.at(1)});
    // The notice is a window of Vesk too.
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [this] { return !veskWindow(); }));
    QCOMPARE(capture(), Outcome::Note);
    QCOMPARE(m_desktop->notes().texts(), m_lines);
}

/// Vesk still exits, and can be started again.
void TestFaults::soundServerHangs()
{
    startDesktop();
    QVERIFY(m_desktop && m_desktop->prepareUser());
    m_desktop->setVariable(u"LD_PRELOAD"_s, QStringLiteral(VESK_HUNG_SOUND));
    QVERIFY(startVesk());
    press({XK_n});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    m_desktop->keyboard().type(u"tea"_s);
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    QVERIFY(m_desktop->display().waitUntil(
        kBound, [this] { return !m_desktop->readFile(u"sound-begun"_s).isEmpty(); }));
    m_vesk->signal(SIGTERM);
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_vesk->exitCode(), 0);
    m_desktop->setVariable(u"LD_PRELOAD"_s, {});
    QVERIFY(startVesk());
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"tea"_s});
}

void TestFaults::extensionOfTheServerIsMissing()
{
    startDesktop({.accessibilityBus = true, .extension = u"XTEST"_s});
    QVERIFY(m_desktop && m_desktop->prepareUser());
    m_vesk = m_desktop->run(VirtualDesktop::veskProgram());
    QVERIFY(m_vesk && m_vesk->waitForExit(kBound));
    QCOMPARE(m_vesk->exitCode(), 1);
    const QString expected = u"The X server lacks the extension XTEST, which Vesk needs."_s;
    QVERIFY2(m_vesk->errorOutput().contains(expected), qPrintable(m_vesk->errorOutput()));
}

void TestFaults::textOutlivesVesk_data()
{
    QTest::addColumn<bool>("hangs");
    QTest::newRow("the clipboard manager takes it") << false;
    QTest::newRow("the clipboard manager hangs") << true;
}

void TestFaults::textOutlivesVesk()
{
    QFETCH(const bool, hangs);
    QCOMPARE(setUp(), QString());
    VERIFY_ON(*m_desktop, m_editor->deselect());
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    m_desktop->keyboard().tap({XK_Down}, kFinger);
    m_desktop->keyboard().tap({XK_Control_L, XK_Return}, kFinger);
    const auto clipboard = [this] { return m_desktop->display().readSelection("CLIPBOARD", kBound); };
    VERIFY_ON(*m_desktop,
              m_desktop->display().waitUntil(kBound, [&] { return clipboard() == m_lines.at(0); }));

    const auto manner = hangs ? ClipboardManager::Manner::Hanging : ClipboardManager::Manner::Ordinary;
    const ClipboardManager manager(m_desktop->displayName(), manner);
    QVERIFY(m_vesk->quit());
    QCOMPARE(m_vesk->exitCode(), 0);
    QCOMPARE(clipboard(), hangs ? std::nullopt : std::optional(m_lines.at(0)));
}

DESKTOP_TEST_MAIN(TestFaults)
#include "tst_faults.moc"
