// SPDX-License-Identifier: MIT
#include "x11test.h"

#include "platform/memory/memorykeyboard.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11hotkeys.h"

#include <QSignalSpy>

#include <ranges>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

constexpr Qt::KeyboardModifiers kSuperAlt = Qt::MetaModifier | Qt::AltModifier;
constexpr KeyCombination kN{.key = KeyPosition::N, .modifiers = kSuperAlt};
constexpr KeyCombination kShiftN{.key = KeyPosition::N, .modifiers = kSuperAlt | Qt::ShiftModifier};
constexpr KeyCombination kT{.key = KeyPosition::T, .modifiers = kSuperAlt};

/// An implementation and the keyboard that belongs to it.
class Bench
{
public:
    virtual ~Bench() = default;
    [[nodiscard]] virtual HotKeys &hotKeys() = 0;
    /// Presses and releases a combination.
    virtual void press(KeyCombination combination) = 0;
    /// Makes another program grab a combination.
    virtual void take(KeyCombination combination) = 0;
};

class MemoryBench final : public Bench
{
public:
    HotKeys &hotKeys() override { return m_hotKeys; }
    void press(KeyCombination combination) override { m_hotKeys.press(combination); }
    void take(KeyCombination combination) override { m_hotKeys.setTaken(combination); }

private:
    MemoryHotKeys m_hotKeys;
};

class X11Bench final : public Bench
{
public:
    X11Bench(Keyboard &keyboard, bool isListening)
        : m_keyboard(keyboard)
        , m_connection(X11Connection::open().connection)
        , m_other(X11Connection::open().connection)
        , m_input(*m_connection)
        , m_otherInput(*m_other)
        , m_hotKeys(*m_connection, m_input)
        , m_otherHotKeys(*m_other, m_otherInput)
    {
        m_input.setListening(isListening);
    }

    HotKeys &hotKeys() override { return m_hotKeys; }
    [[nodiscard]] const ModifierMap &modifiers() const { return m_input.modifiers(); }

    void press(KeyCombination combination) override
    {
        QList<xcb_keysym_t> keys{XK_Super_L, XK_Alt_L};
        if (combination.modifiers & Qt::ShiftModifier)
            keys.append(XK_Shift_L);
        keys.append(combination.key == KeyPosition::N ? XK_n : XK_t);
        for (const xcb_keysym_t key : std::as_const(keys))
            m_keyboard.press(key);
        // No finger releases a key within the same millisecond; a repeat does.
        QTest::qWait(15);
        for (const xcb_keysym_t key : keys | std::views::reverse)
            m_keyboard.release(key);
        QTest::qWait(15);
    }

    void take(KeyCombination combination) override { QVERIFY(m_otherHotKeys.registerHotKey(1, combination)); }

private:
    Keyboard &m_keyboard;
    std::unique_ptr<X11Connection> m_connection;
    std::unique_ptr<X11Connection> m_other;
    RawInput m_input;
    RawInput m_otherInput;
    X11HotKeys m_hotKeys;
    X11HotKeys m_otherHotKeys;
};

} // namespace

/// What the hot keys of all platforms have in common.
class TestHotKeys : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyPressFiresOnce_data() { benches(); }
    void everyPressFiresOnce();
    void registeringAgainReplaces_data() { benches(); }
    void registeringAgainReplaces();
    void takenCombinationIsInert_data() { benches(); }
    void takenCombinationIsInert();
    void lettersAtOnceFireOnceEach_data() { x11Benches(); }
    void lettersAtOnceFireOnceEach();
    void heldKeyFiresOnce_data() { x11Benches(); }
    void heldKeyFiresOnce();
    void locksDoNotMatter();
    void keysFollowTheModifiers();
    void lettersAreWhereTheLayoutHasThem_data();
    void lettersAreWhereTheLayoutHasThem();

private:
    static void benches();
    static void x11Benches();
    [[nodiscard]] std::unique_ptr<Bench> makeBench(const QString &name);
    /// The identifiers of the keys that fired, in order, once `count` have.
    [[nodiscard]] static QList<quint32> fired(QSignalSpy &spy, qsizetype count);
};

void TestHotKeys::benches()
{
    QTest::addColumn<QString>("bench");
    for (const char *name : {"memory", "X11, with consent", "X11, without consent"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

std::unique_ptr<Bench> TestHotKeys::makeBench(const QString &name)
{
    if (name == "memory"_L1)
        return std::make_unique<MemoryBench>();
    return std::make_unique<X11Bench>(m_desktop->keyboard(), name.endsWith("with consent"_L1));
}

QList<quint32> TestHotKeys::fired(QSignalSpy &spy, qsizetype count)
{
    // One more iteration than needed, so that anything that should not have fired would have.
    [&] { QTRY_COMPARE(spy.count(), count); }();
    QTest::qWait(50);
    QList<quint32> ids;
    for (const QList<QVariant> &signal : std::as_const(spy))
        ids.append(signal.first().toUInt());
    return ids;
}

void TestHotKeys::everyPressFiresOnce()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    QVERIFY(it->hotKeys().registerHotKey(1, kN));
    QVERIFY(it->hotKeys().registerHotKey(2, kShiftN));
    QSignalSpy spy(&it->hotKeys(), &HotKeys::pressed);
    it->press(kN);
    it->press(kN);
    it->press(kT);
    it->press(kShiftN);
    it->press(kN);
    QCOMPARE(fired(spy, 4), (QList<quint32>{1, 1, 2, 1}));
    it->hotKeys().unregisterHotKey(1);
    it->press(kN);
    it->press(kShiftN);
    QCOMPARE(fired(spy, 5), (QList<quint32>{1, 1, 2, 1, 2}));
}

void TestHotKeys::registeringAgainReplaces()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    QVERIFY(it->hotKeys().registerHotKey(1, kN));
    QVERIFY(it->hotKeys().registerHotKey(1, kN));
    QVERIFY(it->hotKeys().registerHotKey(1, kT));
    QSignalSpy spy(&it->hotKeys(), &HotKeys::pressed);
    it->press(kN);
    it->press(kT);
    QCOMPARE(fired(spy, 1), QList<quint32>{1});
}

void TestHotKeys::takenCombinationIsInert()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    it->take(kN);
    QVERIFY(!it->hotKeys().registerHotKey(1, kN));
    QVERIFY(it->hotKeys().registerHotKey(2, kT));
    QSignalSpy spy(&it->hotKeys(), &HotKeys::pressed);
    it->press(kN);
    it->press(kT);
    QCOMPARE(fired(spy, 1), QList<quint32>{2});
}

void TestHotKeys::lettersAtOnceFireOnceEach()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    QVERIFY(it->hotKeys().registerHotKey(1, kN));
    QVERIFY(it->hotKeys().registerHotKey(2, kT));
    QSignalSpy spy(&it->hotKeys(), &HotKeys::pressed);
    for (int round = 0; round < 2; ++round) {
        m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_n, XK_t}, kFinger);
        QTest::qWait(int(kFinger.count()));
    }
    QCOMPARE(fired(spy, 4), (QList<quint32>{1, 2, 1, 2}));
}

void TestHotKeys::x11Benches()
{
    QTest::addColumn<QString>("bench");
    QTest::newRow("with consent") << u"X11, with consent"_s;
    QTest::newRow("without consent") << u"X11, without consent"_s;
}

void TestHotKeys::heldKeyFiresOnce()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    QVERIFY(it->hotKeys().registerHotKey(1, kN));
    QSignalSpy spy(&it->hotKeys(), &HotKeys::pressed);
    Keyboard &keyboard = m_desktop->keyboard();
    for (const xcb_keysym_t key : {XK_Super_L, XK_Alt_L, XK_n})
        keyboard.press(key);
    QTest::qWait(1200); // The server begins to repeat after 660 ms.
    for (const xcb_keysym_t key : {XK_n, XK_Alt_L, XK_Super_L})
        keyboard.release(key);
    QCOMPARE(fired(spy, 1).size(), 1);
    it->press(kN);
    QCOMPARE(fired(spy, 2).size(), 2);
}

void TestHotKeys::locksDoNotMatter()
{
    const std::unique_ptr<Bench> it = makeBench(u"X11, with consent"_s);
    QVERIFY(it->hotKeys().registerHotKey(1, kN));
    QSignalSpy spy(&it->hotKeys(), &HotKeys::pressed);
    Keyboard &keyboard = m_desktop->keyboard();
    for (const xcb_keysym_t lock : {XK_Caps_Lock, XK_Num_Lock}) {
        keyboard.tap({lock});
        it->press(kN);
    }
    QCOMPARE(fired(spy, 2).size(), 2);
    keyboard.tap({XK_Num_Lock});
    it->press(kN);
    keyboard.tap({XK_Caps_Lock});
    QCOMPARE(fired(spy, 3).size(), 3);
}

/// Super moves to a separate bit, Num Lock to the bit that Super had.
void TestHotKeys::keysFollowTheModifiers()
{
    X11Bench bench(m_desktop->keyboard(), true);
    QVERIFY(bench.hotKeys().registerHotKey(1, kN));
    QVERIFY(bench.hotKeys().registerHotKey(2, kShiftN));
    QSignalSpy spy(&bench.hotKeys(), &HotKeys::pressed);
    QSignalSpy moved(&bench.modifiers(), &ModifierMap::changed);
    xcb_connection_t *xcb = m_desktop->display().xcb();
    const Reply<xcb_get_modifier_mapping_reply_t> usual{
        xcb_get_modifier_mapping_reply(xcb, xcb_get_modifier_mapping(xcb), nullptr)};
    QVERIFY(usual);
    const int width = usual->keycodes_per_modifier;
    const xcb_keycode_t *keys = xcb_get_modifier_mapping_keycodes(usual.get());
    const auto setMapping = [&](const QList<xcb_keycode_t> &mapping) {
        const auto cookie = xcb_set_modifier_mapping(xcb, uint8_t(width), mapping.constData());
        const Reply<xcb_set_modifier_mapping_reply_t> reply{
            xcb_set_modifier_mapping_reply(xcb, cookie, nullptr)};
        QVERIFY(reply && reply->status == XCB_MAPPING_STATUS_SUCCESS);
        QTRY_VERIFY(!moved.isEmpty());
        moved.clear();
    };
    const auto row = [&](int modifier) {
        return QList(keys + qsizetype{width} * modifier, keys + qsizetype{width} * (modifier + 1));
    };
    // Shift, Lock, Control, then the five that are free.
    setMapping(row(0) + row(1) + row(2) + row(3) + row(5) + row(6) + row(4) + row(7));
    bench.press(kN);
    m_desktop->keyboard().tap({XK_Num_Lock}, kFinger);
    bench.press(kN);
    bench.press(kShiftN);
    m_desktop->keyboard().tap({XK_Num_Lock}, kFinger);
    QCOMPARE(fired(spy, 3), (QList<quint32>{1, 1, 2}));
    setMapping(QList(keys, keys + qsizetype{width} * 8));
    bench.press(kN);
    QCOMPARE(fired(spy, 4).constLast(), 1U);
}

void TestHotKeys::lettersAreWhereTheLayoutHasThem_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QChar>("character");
    QTest::addColumn<std::optional<KeyPosition>>("key");
    QTest::addColumn<QChar>("onQ");
    constexpr KeyPosition kQ{16};
    const auto row = [](const char *name, const QString &layout, QChar character,
                        std::optional<KeyPosition> key,
                        QChar onQ) { QTest::newRow(name) << layout << character << key << onQ; };
    row("American", u"us"_s, u'n', KeyPosition::N, u'Q');
    row("American, sign", u"us"_s, u'#', KeyPosition(4), u'Q');
    row("French", u"fr"_s, u'A', kQ, u'A');
    row("French digit", u"fr"_s, u'1', KeyPosition(2), u'A');
    row("Czech", u"cz"_s, u'č', KeyPosition(5), u'Q');
    row("Russian", u"ru"_s, u'й', kQ, u'Й');
    row("Russian, Latin letter", u"ru"_s, u'n', std::nullopt, u'Й');
    row("Russian before American", u"ru,us"_s, u'n', KeyPosition::N, u'Q');
}

void TestHotKeys::lettersAreWhereTheLayoutHasThem()
{
    QFETCH(const QString, layout);
    QFETCH(const QChar, character);
    QFETCH(const std::optional<KeyPosition>, key);
    X11Bench bench(m_desktop->keyboard(), false);
    QSignalSpy changed(&bench.hotKeys(), &HotKeys::layoutChanged);
    static_cast<void>(bench.hotKeys().findKey(character));
    // Setting the current layout again is not a change.
    for (const QString &next : {u"se"_s, layout}) {
        changed.clear();
        const auto setter = m_desktop->run(u"setxkbmap"_s, {next});
        QVERIFY(setter && setter->waitForExit(kBound));
        QTRY_VERIFY(!changed.isEmpty());
    }
    QTRY_VERIFY2(bench.hotKeys().findKey(character) == key, qPrintable(layout));
    QTEST(bench.hotKeys().characterOn(KeyPosition(16)), "onQ");
}

DESKTOP_TEST_MAIN(TestHotKeys)
#include "tst_hotkeys.moc"
