// SPDX-License-Identifier: MIT
#include "pasteboardprogram.h"
#include "selectionowner.h"
#include "x11test.h"

#include "platform/memory/memorypasteboard.h"
#include "platform/x11/primaryselection.h"
#include "platform/x11/selectioncontent.h"
#include "virtualdesktop/clipboardholder.h"

#include <QCoroTask>

#include <QRandomGenerator>
#include <QSignalSpy>

#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// An implementation, and another program's access to the same pasteboard.
class Bench
{
public:
    virtual ~Bench() = default;
    [[nodiscard]] virtual Pasteboard &pasteboard() = 0;
    virtual void copyElsewhere(const QString &text) = 0;
};

class MemoryBench final : public Bench
{
public:
    Pasteboard &pasteboard() override { return m_pasteboard; }
    void copyElsewhere(const QString &text) override { m_pasteboard.setString(text); }

private:
    MemoryPasteboard m_pasteboard;
};

class X11Bench final : public Bench
{
public:
    explicit X11Bench(X11Pasteboard::Kind kind)
        : m_own(kind)
        , m_other(kind)
    {
    }

    Pasteboard &pasteboard() override { return m_own.pasteboard; }
    void copyElsewhere(const QString &text) override
    {
        m_other.pasteboard.setString(text);
        m_other.catchUp();
    }

private:
    Program m_own;
    /// Receives PRIMARY over the same connection, as in Vesk.
    PrimarySelection m_selection{*m_own.connection};
    Program m_other;
};

QByteArray randomBytes(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator random(1);
    random.generate(bytes.begin(), bytes.end());
    return bytes;
}

QList<PasteboardItem> only(const PasteboardItem &item)
{
    return QList<PasteboardItem>{item};
}

const PasteboardItem &richItem()
{
    static const PasteboardItem item{
        {.type = u"text/html"_s, .data = "<b>\xc3\xa4</b>\0<i>"_qba},
        text("\xc3\xa4 and \xf0\x9f\x91\xa9"_qba),
        {.type = u"image/png"_s, .data = randomBytes(3'000'001)},
        {.type = u"application/x-empty"_s, .data = QByteArray("")},
    };
    return item;
}

} // namespace

/// What the pasteboards of all platforms have in common, and how X11's copes with other programs.
class TestPasteboard : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void textIsReadBack_data();
    void textIsReadBack();
    void itemsAreReadBack_data() { benches(); }
    void itemsAreReadBack();
    void clearedIsEmpty_data() { benches(); }
    void clearedIsEmpty();
    void countRisesOnceForEachChange_data() { benches(); }
    void countRisesOnceForEachChange();
    void twentyMegabytesReachSeveralReaders();
    void readerThatGoesHalfwayHarmsNobody();
    void changeBeforeOwnWriteIsNotCountedAfterIt();
    void originTellsHowLongAgoTheUserCopied();
    void silentOwnerIsAskedOnce();
    void secretIsNotEvenRead();
    void everythingOrNothingIsKept_data();
    void everythingOrNothingIsKept();
    void formThatIsTooLongIsNotCut();
    void takenOverByAClipboardManager();

private:
    static void benches();
    [[nodiscard]] static std::unique_ptr<Bench> makeBench(const QString &name);
};

void TestPasteboard::benches()
{
    QTest::addColumn<QString>("bench");
    QTest::newRow("memory") << u"memory"_s;
    QTest::newRow("X11") << u"X11"_s;
    QTest::newRow("X11, PRIMARY") << u"PRIMARY"_s;
}

std::unique_ptr<Bench> TestPasteboard::makeBench(const QString &name)
{
    if (name == "memory"_L1)
        return std::make_unique<MemoryBench>();
    using Kind = X11Pasteboard::Kind;
    return std::make_unique<X11Bench>(name == "PRIMARY"_L1 ? Kind::Primary : Kind::Clipboard);
}

void TestPasteboard::textIsReadBack_data()
{
    QTest::addColumn<QString>("bench");
    QTest::addColumn<QString>("text");
    for (const char *name : {"memory", "X11"}) {
        const QString bench = QString::fromLatin1(name);
        QTest::addRow("%s, odd characters", name) << bench << u"a\0b\r\n\u2028ä\U0001F469\u200D"_s;
        QTest::addRow("%s, empty", name) << bench << u""_s;
    }
}

void TestPasteboard::textIsReadBack()
{
    QFETCH(const QString, bench);
    QFETCH(const QString, text);
    const std::unique_ptr<Bench> it = makeBench(bench);
    it->pasteboard().setString(u"before"_s);
    it->pasteboard().setString(text);
    QVERIFY(QCoro::waitFor(it->pasteboard().string()) == std::optional(text));
}

void TestPasteboard::itemsAreReadBack()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    it->pasteboard().writeObjects({richItem()});
    QVERIFY(QCoro::waitFor(it->pasteboard().pasteboardItems()) == only(richItem()));
    QVERIFY(QCoro::waitFor(it->pasteboard().string()) == std::optional(u"ä and 👩"_s));
    it->pasteboard().writeObjects({PasteboardItem{richItem().first()}});
    QVERIFY(!QCoro::waitFor(it->pasteboard().string()));
}

void TestPasteboard::clearedIsEmpty()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    it->copyElsewhere(u"theirs"_s);
    it->pasteboard().clearContents();
    QVERIFY(QCoro::waitFor(it->pasteboard().pasteboardItems()).isEmpty());
    QVERIFY(!QCoro::waitFor(it->pasteboard().string()));
}

void TestPasteboard::countRisesOnceForEachChange()
{
    QFETCH(const QString, bench);
    const std::unique_ptr<Bench> it = makeBench(bench);
    Pasteboard &pasteboard = it->pasteboard();
    QSignalSpy spy(&pasteboard, &Pasteboard::changed);
    const qint64 start = pasteboard.changeCount();
    pasteboard.setString(u"own"_s);
    const qint64 own = pasteboard.changeCount();
    QCOMPARE(own, start + 1);
    // The server's report of our own change has arrived when the contents have been read.
    QVERIFY(QCoro::waitFor(pasteboard.string()) == std::optional(u"own"_s));
    QCOMPARE(pasteboard.changeCount(), own);
    it->copyElsewhere(u"theirs"_s);
    QVERIFY(QCoro::waitFor(pasteboard.string()) == std::optional(u"theirs"_s));
    QCOMPARE(pasteboard.changeCount(), own + 1);
    it->copyElsewhere(u"theirs again"_s);
    QVERIFY(QCoro::waitFor(pasteboard.string()) == std::optional(u"theirs again"_s));
    pasteboard.clearContents();
    pasteboard.writeObjects({richItem()});
    QVERIFY(!QCoro::waitFor(pasteboard.pasteboardItems()).isEmpty());
    QCOMPARE(pasteboard.changeCount(), own + 4);
    QCOMPARE(spy.count(), 5);
}

void TestPasteboard::twentyMegabytesReachSeveralReaders()
{
    const PasteboardItem item{text(randomBytes(20'000'000).toBase64())};
    Program vesk;
    Program other;
    vesk.pasteboard.writeObjects({item});
    vesk.catchUp();
    QCoro::Task<QList<PasteboardItem>> first = other.pasteboard.pasteboardItems();
    QCoro::Task<QList<PasteboardItem>> second = other.pasteboard.pasteboardItems();
    const QList<PasteboardItem> own = QCoro::waitFor(vesk.pasteboard.pasteboardItems());
    QVERIFY(own == only(item));
    QVERIFY(QCoro::waitFor(first) == only(item));
    QVERIFY(QCoro::waitFor(second) == only(item));
}

void TestPasteboard::readerThatGoesHalfwayHarmsNobody()
{
    const PasteboardItem item{text(QByteArray(2'000'000, 'x'))};
    Program vesk;
    vesk.pasteboard.writeObjects({item});
    vesk.catchUp();
    {
        const std::unique_ptr<X11Connection> reader = X11Connection::open().connection;
        xcb_convert_selection(reader->xcb(), reader->window(), reader->atom("CLIPBOARD"),
                              reader->atom("text/plain;charset=utf-8"), reader->atom("GOING"),
                              XCB_CURRENT_TIME);
        reader->flush();
        QTRY_VERIFY(!reader->property(reader->window(), reader->atom("GOING")).isEmpty());
    }
    QVERIFY(QCoro::waitFor(vesk.pasteboard.pasteboardItems()) == only(item));
}

void TestPasteboard::changeBeforeOwnWriteIsNotCountedAfterIt()
{
    Program vesk;
    Program other;
    other.pasteboard.setString(u"theirs"_s);
    // Nobody has received that copy yet.
    other.sync();
    vesk.pasteboard.setString(u"own"_s);
    const qint64 own = vesk.pasteboard.changeCount();
    vesk.catchUp();
    QCOMPARE(vesk.pasteboard.changeCount(), own);
    QVERIFY(QCoro::waitFor(other.pasteboard.string()) == std::optional(u"own"_s));
}

/// An application that hung claims the clipboard with the time of the key that told it to.
void TestPasteboard::originTellsHowLongAgoTheUserCopied()
{
    Program vesk;
    Program other;
    other.pasteboard.setString(u"theirs"_s);
    other.catchUp();
    vesk.catchUp();
    QCOMPARE(vesk.pasteboard.origin().delay, 0ms);
    QCOMPARE(vesk.pasteboard.origin().processIdentifier, QCoreApplication::applicationPid());

    const X11Connection &connection = *other.connection;
    xcb_timestamp_t pressed = 0;
    connect(&connection, &X11Connection::eventReceived, this, [&](const xcb_generic_event_t *event) {
        if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY)
            pressed = reinterpret_cast<const xcb_property_notify_event_t *>(event)->time;
    });
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, connection.window(), connection.atom("NOW"),
                        XCB_ATOM_INTEGER, 8, 0, nullptr);
    other.catchUp();
    QVERIFY(pressed != 0);
    QTest::qWait(20);
    xcb_set_selection_owner(connection.xcb(), connection.window(), connection.atom("CLIPBOARD"), pressed);
    other.catchUp();
    vesk.catchUp();
    QVERIFY(vesk.pasteboard.origin().delay > 0ms);
}

void TestPasteboard::silentOwnerIsAskedOnce()
{
    const SelectionOwner owner("x", SelectionOwner::Manner::Silent, "CLIPBOARD");
    Program vesk;
    QVERIFY(QCoro::waitFor(vesk.pasteboard.pasteboardItems()).isEmpty());
    QCOMPARE(owner.readings(), 1);
    QVERIFY(!QCoro::waitFor(vesk.pasteboard.string(Pasteboard::Patience::Long)));
    QCOMPARE(owner.readings(), 2);
}

void TestPasteboard::secretIsNotEvenRead()
{
    const SelectionOwner owner("password", SelectionOwner::Manner::Secret, "CLIPBOARD");
    Program vesk;
    QVERIFY(QCoro::waitFor(vesk.pasteboard.pasteboardItems()).isEmpty());
    QVERIFY(!QCoro::waitFor(vesk.pasteboard.string()));
    QCOMPARE(owner.readings(), 0);
}

void TestPasteboard::everythingOrNothingIsKept_data()
{
    QTest::addColumn<QList<QByteArray>>("given");
    QTest::addColumn<QList<QByteArray>>("silent");
    QTest::addColumn<bool>("isKept");
    using Forms = QList<QByteArray>;
    QTest::newRow("picture that is not converted in time")
        << Forms{"image/png"} << Forms{"image/bmp", "image/tiff", "image/x-xpixmap"} << true;
    QTest::newRow("text in old encodings")
        << Forms{"UTF8_STRING", "text/html"} << Forms{"COMPOUND_TEXT", "STRING"} << true;
    QTest::newRow("text without its markup") << Forms{"UTF8_STRING"} << Forms{"text/html"} << false;
    QTest::newRow("text without its picture") << Forms{"UTF8_STRING"} << Forms{"image/png"} << false;
    QTest::newRow("picture in one of two formats") << Forms{"image/jpeg"} << Forms{"image/bmp"} << false;
    QTest::newRow("moving picture") << Forms{"image/png"} << Forms{"image/gif"} << false;
}

void TestPasteboard::everythingOrNothingIsKept()
{
    QFETCH(const QList<QByteArray>, given);
    QFETCH(const QList<QByteArray>, silent);
    QFETCH(const bool, isKept);
    ClipboardHolder::Forms forms;
    PasteboardItem expected;
    for (const QByteArray &form : given) {
        forms.insert(form, "content of " + form);
        expected.append({.type = QString::fromLatin1(form), .data = forms.value(form)});
    }
    const auto owner = ClipboardHolder::hold(m_desktop->displayName(), forms, "CLIPBOARD", silent);
    Program vesk;
    const QList<PasteboardItem> items = QCoro::waitFor(vesk.pasteboard.pasteboardItems());
    QVERIFY(items == (isKept ? only(expected) : QList<PasteboardItem>()));
    QVERIFY(vesk.pasteboard.hasContents());
}

/// It would be restored as if it were complete.
void TestPasteboard::formThatIsTooLongIsNotCut()
{
    const QByteArray tooLong(selectioncontent::kMaximumBytes + 1, 'x');
    const PasteboardData picture{.type = u"image/png"_s, .data = "png"};
    Program vesk;
    Program other;
    other.pasteboard.writeObjects({{picture, {.type = u"image/bmp"_s, .data = tooLong}}});
    other.catchUp();
    QVERIFY(QCoro::waitFor(vesk.pasteboard.pasteboardItems()) == only({picture}));
    other.pasteboard.writeObjects({{picture, {.type = u"text/html"_s, .data = tooLong}}});
    other.catchUp();
    QVERIFY(QCoro::waitFor(vesk.pasteboard.pasteboardItems()).isEmpty());
    QVERIFY(vesk.pasteboard.hasContents());
}

void TestPasteboard::takenOverByAClipboardManager()
{
    using Claim = Pasteboard::Claim;
    const Program vesk;
    Program manager;
    const auto claim = [&vesk] {
        vesk.catchUp();
        return vesk.pasteboard.origin().claim;
    };
    const auto bringForward = [this](xcb_window_t window) {
        xcb_change_property(m_connection->xcb(), XCB_PROP_MODE_REPLACE, m_connection->root(),
                            m_connection->atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32, 1, &window);
        std::ignore = m_connection->property32(m_connection->root(), XCB_ATOM_WM_NAME);
    };
    auto application = std::make_unique<Program>();
    bringForward(application->connection->window());
    application->pasteboard.setString(u"theirs"_s);
    application->catchUp();
    QCOMPARE(claim(), Claim::Ordinary);
    // The window manager's are the only windows of another process.
    const auto other =
        m_connection->property32(m_connection->root(), m_connection->atom("_NET_SUPPORTING_WM_CHECK"));
    QVERIFY(other);
    bringForward(*other);
    manager.pasteboard.setString(u"theirs"_s);
    manager.catchUp();
    QCOMPARE(claim(), Claim::Aside);

    bringForward(application->connection->window());
    application->pasteboard.setString(u"theirs again"_s);
    application->catchUp();
    application.reset();
    QTRY_VERIFY(!vesk.pasteboard.hasContents());
    QCOMPARE(claim(), Claim::Ordinary);
    manager.pasteboard.setString(u"theirs again"_s);
    manager.catchUp();
    QCOMPARE(claim(), Claim::AfterLoss);
}

DESKTOP_TEST_MAIN(TestPasteboard)
#include "tst_pasteboard.moc"
