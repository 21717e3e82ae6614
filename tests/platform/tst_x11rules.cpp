// SPDX-License-Identifier: MIT
#include "platform/x11/clientmachine.h"
#include "platform/x11/contentforms.h"
#include "platform/x11/screenspace.h"
#include "platform/x11/selectionbytes.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The space that docks leave on the screens, and the targets that other programs list.
class X11RulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void docksTakeTheirScreensOnly_data();
    void docksTakeTheirScreensOnly();
    void targetsThatAreCutAreLeftOut();
    void processOfAWindow_data();
    void processOfAWindow();
    void textKeepsEveryCharacter_data();
    void textKeepsEveryCharacter();
    void formsMadeFromOthers_data();
    void formsMadeFromOthers();
};

void X11RulesTest::docksTakeTheirScreensOnly_data()
{
    QTest::addColumn<QList<Strut>>("struts");
    QTest::addColumn<QRect>("left");
    QTest::addColumn<QRect>("right");
    const QRect left(0, 0, 1600, 1000);
    const QRect right(1600, 200, 1200, 800);

    QTest::newRow("none") << QList<Strut>() << left << right;
    QTest::newRow("below the left one")
        << QList<Strut>{{0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 0, 1599}} << left.adjusted(0, 0, 0, -40) << right;
    QTest::newRow("over the right one, whose edge is not the desktop's")
        << QList<Strut>{{0, 0, 230, 0, 0, 0, 0, 0, 1600, 2799}} << left << right.adjusted(0, 30, 0, 0);
    QTest::newRow("on the inner edge of the right one")
        << QList<Strut>{{1640, 0, 0, 0, 200, 999}} << left << right.adjusted(40, 0, 0, 0);
    QTest::newRow("on the inner edge of the left one")
        << QList<Strut>{{0, 1260, 0, 0, 0, 0, 0, 999}} << left.adjusted(0, 0, -60, 0) << right;
    QTest::newRow("the larger of two counts, not the sum")
        << QList<Strut>{{50, 0, 0, 0, 0, 999}, {30, 0, 0, 0, 0, 999}} << left.adjusted(50, 0, 0, 0) << right;
    QTest::newRow("of the older kind, as long as the edge")
        << QList<Strut>{wholeEdges(0, 0, 0, 25)} << left.adjusted(0, 0, 0, -25)
        << right.adjusted(0, 0, 0, -25);
    QTest::newRow("nonsense takes nothing")
        << QList<Strut>{wholeEdges(0xffffffff, 0xffffffff, 9000, 9000)} << left << right;
}

void X11RulesTest::docksTakeTheirScreensOnly()
{
    QFETCH(QList<Strut>, struts);
    constexpr QSize kDesktop(2800, 1000);
    QTEST(spaceOn(QRect(0, 0, 1600, 1000), kDesktop, struts), "left");
    QTEST(spaceOn(QRect(1600, 200, 1200, 800), kDesktop, struts), "right");
}

void X11RulesTest::targetsThatAreCutAreLeftOut()
{
    for (const qsizetype size : {0, 1, 3, 4, 7})
        QCOMPARE(selectionbytes::atoms(QByteArray(size, '\1')),
                 QList<xcb_atom_t>(size / 4, xcb_atom_t{0x01010101}));
}

void X11RulesTest::processOfAWindow_data()
{
    using Process = std::optional<qint64>;
    QTest::addColumn<QString>("machine");
    QTest::addColumn<Process>("connected");
    QTest::addColumn<Process>("stated");
    QTest::addColumn<bool>("isOwn");
    QTest::addColumn<Process>("expected");
    const Process none;
    QTest::newRow("local") << u"desk"_s << Process(12) << Process(12) << true << Process(12);
    QTest::newRow("does not say where") << QString() << none << Process(12) << true << Process(12);
    QTest::newRow("with its domain") << u"DESK.example.org"_s << none << Process(12) << true << Process(12);
    QTest::newRow("localhost") << u"localhost"_s << none << Process(12) << true << Process(12);
    QTest::newRow("says nonsense") << u"desk"_s << none << Process(0) << true << none;
    QTest::newRow("by ssh") << u"server"_s << Process(7) << Process(12) << false << Process(7);
    QTest::newRow("by the network") << u"server"_s << none << Process(12) << false << none;
    QTest::newRow("begins alike") << u"desktop"_s << none << Process(12) << false << none;
}

void X11RulesTest::processOfAWindow()
{
    using Process = std::optional<qint64>;
    QFETCH(const QString, machine);
    QFETCH(const Process, connected);
    QFETCH(const Process, stated);
    const bool isOwn = isOwnMachine(machine, u"desk"_s);
    QTEST(isOwn, "isOwn");
    QTEST(processOfClient(connected, stated, isOwn), "expected");
}

void X11RulesTest::textKeepsEveryCharacter_data()
{
    using selectionbytes::Encoding;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Encoding>("encoding");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QByteArray &bytes, Encoding encoding, const QString &text) {
        QTest::newRow(name) << bytes << encoding << text;
    };
    row("U+FEFF at the beginning",
        "\xef\xbb\xbf"
        "a",
        Encoding::Utf8, u"\ufeffa"_s);
    row("U+FEFF twice", "\xef\xbb\xbf\xef\xbb\xbf", Encoding::Utf8, u"\ufeff\ufeff"_s);
    row("U+FFFE",
        "\xef\xbf\xbe"
        "a",
        Encoding::Utf8, u"\ufffea"_s);
    row("NUL and line breaks", "a\0\r\n\r"_qba, Encoding::Utf8, u"a\0\r\n\r"_s);
    row("beyond the first plane", "\xf0\x9f\x91\xa9", Encoding::Utf8, u"\U0001F469"_s);
    row("half of a pair",
        "a\xed\xa0\x80"
        "b",
        Encoding::Utf8, u"a\ufffd\ufffd\ufffdb"_s);
    row("cut in a character", "a\xf0\x9f", Encoding::Utf8, u"a\ufffd\ufffd"_s);
    row("Latin-1", "\xef\xbb\xbf\x80\xff", Encoding::Latin1, u"\u00ef\u00bb\u00bf\u0080\u00ff"_s);
}

void X11RulesTest::textKeepsEveryCharacter()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const selectionbytes::Encoding, encoding);
    QTEST(selectionbytes::text(bytes, encoding), "text");
}

void X11RulesTest::formsMadeFromOthers_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QList<QByteArray>>("offered");
    QTest::addColumn<QByteArray>("source");
    const auto row = [](const QByteArray &form, const QList<QByteArray> &others, const QByteArray &source) {
        QTest::newRow((form + " beside " + others.join(", ")).constData())
            << form << (others + QList<QByteArray>{form}) << source;
    };
    row("image/bmp", {"image/png"}, "image/png");
    row("image/x-xpixmap", {"image/tiff", "image/png"}, "image/png");
    row("image/bmp", {"image/jpeg"}, {});
    row("image/png", {"image/bmp"}, {});
    row("image/gif", {"image/png"}, {});
    row("image/svg+xml", {"image/png"}, {});
    row("STRING", {"UTF8_STRING"}, "UTF8_STRING");
    row("text/plain", {"text/plain;charset=utf-8"}, "text/plain;charset=utf-8");
    row("text/plain;charset=utf-8", {"UTF8_STRING"}, "UTF8_STRING");
    row("UTF8_STRING", {"text/plain;charset=utf-8"}, {});
    row("STRING", {"text/plain"}, {});
    row("text/html", {"UTF8_STRING", "image/png"}, {});
}

void X11RulesTest::formsMadeFromOthers()
{
    QFETCH(const QByteArray, form);
    QFETCH(const QList<QByteArray>, offered);
    QTEST(contentforms::sourceOf(form, offered), "source");
}

QTEST_GUILESS_MAIN(X11RulesTest)
#include "tst_x11rules.moc"
