// SPDX-License-Identifier: MIT
#include "desktop/keyrecorder.h"
#include "desktop/vesktest.h"
#include "virtualdesktop/files.h"

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

const auto kCopy = u"Control+c"_s;
const auto kPaste = u"Control+v"_s;
const auto kWindowClosed = u"Copied. The window you came from has closed"_s;
const auto kOnlyCopied = u"Copied. Paste it where you need it"_s;

using Keys = QList<xcb_keysym_t>;

} // namespace

Q_DECLARE_METATYPE(Keyboard::Device)

/// Where Vesk's synthetic keys go, and what happens to keys that the user presses meanwhile.
class TestSentKeys : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void heldModifiersAreBackAfterACopy_data();
    void heldModifiersAreBackAfterACopy();
    void heldControlIsBackAfterPasting();
    void lettersTypedAroundACopyGoIntoTheBox_data();
    void lettersTypedAroundACopyGoIntoTheBox();
    void keysGoToTheWindowOfThePressOnly_data();
    void keysGoToTheWindowOfThePressOnly();
    void programsThatMayHaveATerminalGetNoCopy_data();
    void programsThatMayHaveATerminalGetNoCopy();
    void nothingIsPastedWhenTheWindowHasClosed();
    void textThatATerminalCannotTakeIsCopied();
    void heldReturnReachesNoOtherWindow();
    void desktopsOwnKeyLeavesTheSelectionFresh();
    void heldKeyLeavesTheSelectionFresh();

private:
    [[nodiscard]] std::optional<QString> clipboard()
    {
        return m_desktop->display().readSelection("CLIPBOARD", 1s);
    }
    /// Whether no key is down and no modifier is active.
    [[nodiscard]] bool isKeyboardAtRest();
    /// Opens the panel with one note selected.
    [[nodiscard]] bool selectNote(const QString &text);
    /// Selects a word in a new terminal; null on failure.
    [[nodiscard]] std::unique_ptr<ChildProcess> selectInTerminal(const QString &word);

    std::unique_ptr<KeyRecorder> m_recorder;
};

void TestSentKeys::init()
{
    VeskTest::init();
    QVERIFY(m_desktop && startVesk());
    m_recorder = KeyRecorder::open(*m_desktop, u"Recorder"_s);
    VERIFY_ON(*m_desktop, m_recorder);
}

void TestSentKeys::cleanup()
{
    m_recorder.reset();
    VeskTest::cleanup();
}

bool TestSentKeys::isKeyboardAtRest()
{
    xcb_connection_t *xcb = m_desktop->display().xcb();
    const Reply<xcb_query_pointer_reply_t> pointer{
        xcb_query_pointer_reply(xcb, xcb_query_pointer(xcb, m_desktop->display().root()), nullptr)};
    const Reply<xcb_query_keymap_reply_t> keymap{xcb_query_keymap_reply(xcb, xcb_query_keymap(xcb), nullptr)};
    return pointer && keymap && (pointer->mask & 0xff) == 0
           && std::ranges::all_of(keymap->keys, [](quint8 bits) { return bits == 0; });
}

bool TestSentKeys::selectNote(const QString &text)
{
    if (!runToEnd(VirtualDesktop::veskProgram(), {u"add"_s, text}))
        return false;
    togglePanel();
    if (!m_desktop->windows().waitFocused(kPanel, kBound))
        return false;
    m_desktop->keyboard().tap({XK_Down}, kFinger);
    return true;
}

std::unique_ptr<ChildProcess> TestSentKeys::selectInTerminal(const QString &word)
{
    const QString command = u"printf '%1\\n'; sleep 100"_s.arg(word);
    std::unique_ptr<ChildProcess> terminal =
        m_desktop->run(u"xterm"_s, {u"-geometry"_s, u"40x10+400+300"_s, u"-e"_s, u"sh"_s, u"-c"_s, command});
    const std::optional<Window> window =
        terminal ? m_desktop->windows().waitViewableOf(terminal->pid(), {}, kBound) : std::nullopt;
    if (!window || !m_desktop->windows().waitFocused(*window, kBound))
        return nullptr;
    const QPoint start = window->geometry.topLeft() + QPoint(12, 10);
    const bool isSelected = m_desktop->display().waitUntil(kBound, [&] {
        m_desktop->pointer().click(start, 2);
        return m_desktop->display().waitUntil(
            500ms, [&] { return m_desktop->display().readSelection("PRIMARY", 200ms) == word; });
    });
    return isSelected ? std::move(terminal) : nullptr;
}

void TestSentKeys::heldModifiersAreBackAfterACopy_data()
{
    QTest::addColumn<Keyboard::Device>("device");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<Keys>("released");
    QTest::addColumn<QString>("typedThen");
    const Keys superAlt{XK_Super_L, XK_Alt_L};
    const Keys withShift{XK_Super_L, XK_Alt_L, XK_Shift_L};
    for (const auto device : {Keyboard::Device::Hardware, Keyboard::Device::Programs}) {
        const auto row = [device](const char *name, const Keys &keys, const Keys &released,
                                  const QString &typed) {
            const QByteArray prefix = device == Keyboard::Device::Hardware ? "keyboard, " : "program, ";
            QTest::newRow((prefix + name).constData()) << device << keys << released << typed;
        };
        row("all held", superAlt, {}, u"Super+Alt+x"_s);
        row("Alt held", superAlt, {XK_Super_L}, u"Alt+x"_s);
        row("Super held", superAlt, {XK_Alt_L}, u"Super+x"_s);
        row("three held", withShift, {}, u"Super+Alt+Shift+x"_s);
    }
}

/// Otherwise, the next typing would replace the selection.
void TestSentKeys::heldModifiersAreBackAfterACopy()
{
    QFETCH(const Keyboard::Device, device);
    QFETCH(const Keys, keys);
    QFETCH(const Keys, released);
    QFETCH(const QString, typedThen);
    Keyboard keyboard(m_desktop->display(), device);
    // Anything left over from the first round would show in the second.
    for (int round = 0; round < 2; ++round) {
        m_recorder->forget();
        for (const xcb_keysym_t key : keys)
            keyboard.press(key);
        keyboard.tap({XK_n}, kFinger);
        // Vesk waits for the letter; the modifiers may be released before or after the copy.
        for (const xcb_keysym_t key : released)
            keyboard.release(key);
        QVERIFY2(m_recorder->waitFor(kCopy), qPrintable(m_recorder->keys().join(u' ')));
        keyboard.tap({XK_x}, kFinger);
        for (const xcb_keysym_t key : keys)
            keyboard.release(key);
        QTest::qWait(100);
        keyboard.tap({XK_y}, kFinger);
        QVERIFY2(m_recorder->waitFor(u"y"_s), qPrintable(m_recorder->keys().join(u' ')));
        QCOMPARE(m_recorder->keys(), (QStringList{kCopy, typedThen, u"y"_s}));
        QVERIFY(isKeyboardAtRest());
        // Nothing was copied, so the box opens and takes the focus.
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
        m_desktop->keyboard().tap({XK_Escape}, kFinger);
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(m_recorder->window(), kBound));
        QTest::qWait(int(kCaptureGate.count()));
    }
}

void TestSentKeys::heldControlIsBackAfterPasting()
{
    VERIFY_ON(*m_desktop, selectNote(u"Water the lemon tree"_s));
    Keyboard keyboard(m_desktop->display(), Keyboard::Device::Hardware);
    keyboard.press(XK_Control_L);
    keyboard.tap({XK_Return}, kFinger);
    QVERIFY2(m_recorder->waitFor(kPaste), qPrintable(m_recorder->keys().join(u' ')));
    keyboard.tap({XK_x}, kFinger);
    keyboard.release(XK_Control_L);
    QTest::qWait(100);
    keyboard.tap({XK_y}, kFinger);
    QVERIFY(m_recorder->waitFor(u"y"_s));
    QCOMPARE(m_recorder->keys(), (QStringList{kPaste, u"Control+x"_s, u"y"_s}));
    QVERIFY(isKeyboardAtRest());
}

void TestSentKeys::lettersTypedAroundACopyGoIntoTheBox_data()
{
    QTest::addColumn<Keyboard::Device>("device");
    QTest::addColumn<bool>("isAfterTheCopy");
    QTest::newRow("keyboard, before") << Keyboard::Device::Hardware << false;
    QTest::newRow("keyboard, after") << Keyboard::Device::Hardware << true;
    QTest::newRow("program, before") << Keyboard::Device::Programs << false;
    QTest::newRow("program, after") << Keyboard::Device::Programs << true;
}

/// In the document they would replace the selection.
void TestSentKeys::lettersTypedAroundACopyGoIntoTheBox()
{
    QFETCH(const Keyboard::Device, device);
    QFETCH(const bool, isAfterTheCopy);
    Keyboard keyboard(m_desktop->display(), device);
    const Keys hotKey{XK_Super_L, XK_Alt_L, XK_n};
    for (const xcb_keysym_t key : hotKey)
        keyboard.press(key);
    // Nothing is copied before the hot key is released, and Vesk has received it by then.
    VERIFY_ON(*m_desktop,
              m_desktop->display().waitUntil(kBound, [this] { return m_desktop->pointer().isTaken(); }));
    for (const xcb_keysym_t key : hotKey | std::views::reverse)
        keyboard.release(key);
    if (isAfterTheCopy)
        QVERIFY2(m_recorder->waitFor(kCopy), qPrintable(m_recorder->keys().join(u' ')));
    for (const xcb_keysym_t key : {XK_t, XK_e, XK_a})
        keyboard.tap({key}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    keyboard.tap({XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, waitNotes({u"tea"_s}));
    QCOMPARE(m_recorder->keys(), isAfterTheCopy ? QStringList{kCopy} : QStringList());
    QVERIFY(isKeyboardAtRest());
}

void TestSentKeys::keysGoToTheWindowOfThePressOnly_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change : {"another window", "another window at once", "focus alone", "keyboard grabbed"})
        QTest::newRow(change) << QString::fromLatin1(change);
}

/// Something happens while the user still holds the key.
void TestSentKeys::keysGoToTheWindowOfThePressOnly()
{
    QFETCH(const QString, change);
    const bool isWindow = change.startsWith("another window"_L1);
    const std::unique_ptr<KeyRecorder> other =
        KeyRecorder::open(*m_desktop, u"Other"_s, isWindow ? "Other" : "");
    VERIFY_ON(*m_desktop, other);
    m_desktop->windows().activate(m_recorder->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_recorder->window(), kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(m_recorder->window(), kBound));
    Keyboard &keyboard = m_desktop->keyboard();
    const Keys keys{XK_Super_L, XK_Alt_L, XK_n};
    for (const xcb_keysym_t key : keys)
        keyboard.press(key);
    // Vesk has received the key once it gives the focus back.
    if (!change.endsWith("at once"_L1)) {
        VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] { return other->grabKeyboard(); }));
        if (change != "keyboard grabbed"_L1)
            other->ungrabKeyboard();
    }
    if (isWindow)
        m_desktop->windows().activate(other->window());
    else if (change == "focus alone"_L1)
        xcb_set_input_focus(m_desktop->display().xcb(), XCB_INPUT_FOCUS_PARENT, other->window().id,
                            XCB_CURRENT_TIME);
    if (change != "keyboard grabbed"_L1)
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(other->window(), kBound));
    for (const xcb_keysym_t key : keys | std::views::reverse)
        keyboard.release(key);
    QTest::qWait(1000); // Longer than Vesk waits for the key to be released.
    // The other window may have received the held key itself.
    QVERIFY2(!m_recorder->keys().contains(kCopy), qPrintable(m_recorder->keys().join(u' ')));
    QVERIFY2(!other->keys().contains(kCopy), qPrintable(other->keys().join(u' ')));
}

void TestSentKeys::programsThatMayHaveATerminalGetNoCopy_data()
{
    QTest::addColumn<QByteArray>("windowClass");
    for (const char *name :
         {"jetbrains-idea", "Code", "VirtualBox Machine", "Vncviewer", "Remmina", "Konsole"})
        QTest::newRow(name) << QByteArray(name);
}

void TestSentKeys::programsThatMayHaveATerminalGetNoCopy()
{
    QFETCH(const QByteArray, windowClass);
    const std::unique_ptr<KeyRecorder> program = KeyRecorder::open(*m_desktop, u"Program"_s, windowClass);
    VERIFY_ON(*m_desktop, program);
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kQuickNote, kBound));
    QCOMPARE(program->keys(), QStringList());
}

void TestSentKeys::nothingIsPastedWhenTheWindowHasClosed()
{
    std::unique_ptr<KeyRecorder> program = KeyRecorder::open(*m_desktop, u"Program"_s);
    VERIFY_ON(*m_desktop, program);
    const QString text = u"Water the lemon tree"_s;
    VERIFY_ON(*m_desktop, selectNote(text));
    program.reset();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(u"Program"_s, kBound));
    m_desktop->keyboard().tap({XK_Control_L, XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, waitNotice(kWindowClosed));
    QCOMPARE(clipboard(), text);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(m_recorder->window(), kBound));
    QTest::qWait(1500); // Longer than Vesk waits for a window.
    QCOMPARE(m_recorder->keys(), QStringList());
}

void TestSentKeys::textThatATerminalCannotTakeIsCopied()
{
    const std::unique_ptr<KeyRecorder> program = KeyRecorder::open(*m_desktop, u"Program"_s, "XTerm");
    VERIFY_ON(*m_desktop, program);
    const QString text = u"Water the lemon tree"_s;
    VERIFY_ON(*m_desktop, selectNote(text));
    m_desktop->keyboard().tap({XK_Control_L, XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, waitNotice(kOnlyCopied));
    QCOMPARE(clipboard(), text);
    QCOMPARE(program->keys(), QStringList());
}

/// The server repeats it for the window that has the focus then.
void TestSentKeys::heldReturnReachesNoOtherWindow()
{
    Keyboard &keyboard = m_desktop->keyboard();
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    QTest::qWait(int(kFinger.count()));
    m_recorder->forget();
    keyboard.type(u"lemon"_s);
    keyboard.press(XK_Return);
    VERIFY_ON(*m_desktop, waitNotes({u"lemon"_s}));
    QTest::qWait(1500); // The server begins to repeat 660 ms after the press.
    keyboard.release(XK_Return);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(m_recorder->window(), kBound));
    QTest::qWait(100);
    keyboard.tap({XK_y}, kFinger);
    QVERIFY(m_recorder->waitFor(u"y"_s));
    keyboard.tap({XK_Return}, kFinger);
    QVERIFY(m_recorder->waitFor(u"0xff0d"_s));
    QCOMPARE(m_recorder->keys().join(u' '), u"y 0xff0d"_s);
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"lemon"_s});
}

/// The letter of a key that the desktop binds to `vesk capture` is not typed anywhere.
void TestSentKeys::desktopsOwnKeyLeavesTheSelectionFresh()
{
    QString config = QString::fromUtf8(contentsOf(u"/etc/xdg/openbox/rc.xml"_s));
    const QString program = VirtualDesktop::veskProgram();
    const auto binding = [&program](const QString &key) {
        return u"<keybind key=\"%1\"><action name=\"Execute\"><command>%2 capture</command></action></keybind>"_s
            .arg(key, program);
    };
    config.replace(u"</keyboard>"_s, binding(u"C-j"_s) + binding(u"F7"_s) + u"</keyboard>"_s);
    QVERIFY(!m_desktop->writeFile(u"config/openbox/rc.xml"_s, config).isEmpty());
    QVERIFY(runToEnd(u"openbox"_s, {u"--reconfigure"_s}));
    const std::unique_ptr<ChildProcess> terminal = selectInTerminal(u"balcony"_s);
    VERIFY_ON(*m_desktop, terminal);
    m_desktop->keyboard().tap({XK_Control_L, XK_j});
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"balcony"_s});
    QTest::qWait(int(kCaptureGate.count()));
    m_desktop->keyboard().tap({XK_F7}, kFinger);
    VERIFY_ON(*m_desktop, waitNotice(kAlready));
}

void TestSentKeys::heldKeyLeavesTheSelectionFresh()
{
    const std::unique_ptr<ChildProcess> terminal = selectInTerminal(u"balcony"_s);
    VERIFY_ON(*m_desktop, terminal);
    Keyboard keyboard(m_desktop->display(), Keyboard::Device::Hardware);
    const Keys keys{XK_Super_L, XK_Alt_L, XK_n};
    for (const xcb_keysym_t key : keys)
        keyboard.press(key);
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    QTest::qWait(int(kCaptureGate.count()));
    for (const xcb_keysym_t key : keys | std::views::reverse)
        keyboard.release(key);
    QTest::qWait(100);
    keyboard.tap(keys, kFinger);
    VERIFY_ON(*m_desktop, waitNotice(kAlready));
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"balcony"_s});
}

DESKTOP_TEST_MAIN(TestSentKeys)
#include "tst_sentkeys.moc"
