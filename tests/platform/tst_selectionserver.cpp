// SPDX-License-Identifier: MIT
#include "pasteboardprogram.h"
#include "x11test.h"

#include "platform/x11/selectionserver.h"
#include "platform/x11/selectiontransfer.h"
#include "platform/x11/xreply.h"

#include <array>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// What other programs get when they request Vesk's selection.
class TestSelectionServer : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void lostSelectionIsNotServed();
    void readerThatNamesTheRootLeavesItHeard();
    void tooManyFormsAtOnceAreRefused();
    void severalFormsAreGivenAtOnce();
    void formsOfText_data();
    void formsOfText();
};

void TestSelectionServer::lostSelectionIsNotServed()
{
    Program own;
    SelectionServer server(*own.connection, own.connection->atom("CLIPBOARD"));
    server.offer({text("ours")});
    own.catchUp();
    QVERIFY(server.isOwner());
    Program other;
    other.pasteboard.setString(u"theirs"_s);
    other.catchUp();
    QTRY_VERIFY(!server.isOwner());
    // The loss of an offer that has since been replaced is ignored.
    server.offer({text("ours")});
    other.pasteboard.setString(u"theirs"_s);
    other.sync();
    server.offer({text("ours again")});
    own.catchUp();
    QVERIFY(server.isOwner());
    QVERIFY(QCoro::waitFor(other.pasteboard.string()) == std::optional(u"ours again"_s));
}

/// Vesk learns about the active window from the root window's properties.
void TestSelectionServer::readerThatNamesTheRootLeavesItHeard()
{
    Program vesk;
    const Program other;
    const X11Connection &reader = *other.connection;
    const xcb_atom_t property = reader.atom("PIECE");
    vesk.pasteboard.setString(QString(1'000'000, u'x'));
    vesk.catchUp();
    xcb_convert_selection(reader.xcb(), reader.root(), reader.atom("CLIPBOARD"), reader.atom("UTF8_STRING"),
                          property, XCB_CURRENT_TIME);
    other.sync();
    // The last piece is empty.
    QTRY_COMPARE(reader.property(reader.root(), property).size(), 4);
    bool isLast = false;
    while (!isLast) {
        xcb_delete_property(reader.xcb(), reader.root(), property);
        other.sync();
        vesk.catchUp();
        const auto cookie = xcb_get_property(reader.xcb(), 0, reader.root(), property, XCB_ATOM_ANY, 0, 0);
        const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(reader.xcb(), cookie, nullptr));
        QVERIFY(reply && reply->type == reader.atom("UTF8_STRING"));
        isLast = reply->bytes_after == 0;
    }
    vesk.catchUp();
    vesk.catchUp();
    bool isHeard = false;
    connect(vesk.connection.get(), &X11Connection::eventReceived, this,
            [&](const xcb_generic_event_t *event) {
                isHeard |= (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY;
            });
    xcb_delete_property(reader.xcb(), reader.root(), property);
    other.sync();
    vesk.catchUp();
    QVERIFY(isHeard);
}

void TestSelectionServer::tooManyFormsAtOnceAreRefused()
{
    Program vesk;
    const Program other;
    vesk.pasteboard.setString(u"x"_s);
    vesk.catchUp();
    const X11Connection &reader = *other.connection;
    const QList<xcb_atom_t> pairs(2 * (SelectionServer::kMaximumPairs + 1), reader.atom("UTF8_STRING"));
    xcb_change_property(reader.xcb(), XCB_PROP_MODE_REPLACE, reader.window(), reader.atom("PAIRS"),
                        reader.atom("ATOM_PAIR"), 32, static_cast<uint32_t>(pairs.size()), pairs.data());
    std::optional<xcb_atom_t> answer;
    connect(&reader, &X11Connection::eventReceived, this, [&](const xcb_generic_event_t *event) {
        if ((event->response_type & 0x7f) == XCB_SELECTION_NOTIFY)
            answer = reinterpret_cast<const xcb_selection_notify_event_t *>(event)->property;
    });
    xcb_convert_selection(reader.xcb(), reader.window(), reader.atom("CLIPBOARD"), reader.atom("MULTIPLE"),
                          reader.atom("PAIRS"), XCB_CURRENT_TIME);
    other.sync();
    QTRY_VERIFY(answer);
    QCOMPARE(*answer, xcb_atom_t{XCB_ATOM_NONE});
}

void TestSelectionServer::severalFormsAreGivenAtOnce()
{
    Program vesk;
    const Program other;
    vesk.pasteboard.setString(u"ж"_s);
    const X11Connection &reader = *other.connection;
    const std::array<xcb_atom_t, 4> pairs{reader.atom("UTF8_STRING"), reader.atom("FIRST"),
                                          reader.atom("image/png"), reader.atom("SECOND")};
    xcb_change_property(reader.xcb(), XCB_PROP_MODE_REPLACE, reader.window(), reader.atom("PAIRS"),
                        reader.atom("ATOM_PAIR"), 32, pairs.size(), pairs.data());
    xcb_convert_selection(reader.xcb(), reader.window(), reader.atom("CLIPBOARD"), reader.atom("MULTIPLE"),
                          reader.atom("PAIRS"), XCB_CURRENT_TIME);
    other.sync();
    QTRY_COMPARE(reader.property(reader.window(), reader.atom("FIRST")), "\xd0\xb6"_qba);
    const std::array<xcb_atom_t, 4> answer{pairs[0], pairs[1], XCB_ATOM_NONE, pairs[3]};
    const QByteArray expected(reinterpret_cast<const char *>(answer.data()), sizeof answer);
    QTRY_COMPARE(reader.property(reader.window(), reader.atom("PAIRS")), expected);
}

void TestSelectionServer::formsOfText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QString &text, const QByteArray &target,
                        const QByteArray &type,
                        const QByteArray &bytes) { QTest::newRow(name) << text << target << type << bytes; };
    row("UTF-8", u"ж"_s, "UTF8_STRING", "UTF8_STRING", "\xd0\xb6");
    row("plain", u"ж"_s, "text/plain", "text/plain", "\xd0\xb6");
    row("any", u"ж"_s, "TEXT", "UTF8_STRING", "\xd0\xb6");
    row("Latin", u"ä"_s, "STRING", "STRING", "\xe4");
    row("not Latin", u"ж"_s, "STRING", {}, {});
}

void TestSelectionServer::formsOfText()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, target);
    QFETCH(const QByteArray, type);
    QFETCH(const QByteArray, bytes);
    Program vesk;
    Program other;
    vesk.pasteboard.setString(text);
    vesk.catchUp();
    const SelectionTransfer::Data data = QCoro::waitFor(
        SelectionTransfer::read(*other.connection, other.connection->atom("CLIPBOARD"),
                                other.connection->atom(target.constData()), qsizetype{1} << 16, 10s));
    QCOMPARE(data.outcome == SelectionTransfer::Outcome::Complete, !type.isEmpty());
    if (!type.isEmpty())
        QCOMPARE(data.type, other.connection->atom(type.constData()));
    QCOMPARE(data.bytes, bytes);
}

DESKTOP_TEST_MAIN(TestSelectionServer)
#include "tst_selectionserver.moc"
