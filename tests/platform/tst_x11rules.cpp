// SPDX-License-Identifier: MIT
#include "platform/x11/clientmachine.h"
#include "platform/x11/screenspace.h"
#include "platform/x11/selectionbytes.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What docks leave of the screens of a desktop, and what other programs give for targets.
class X11RulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void docksTakeTheirScreensOnly_data();
    void docksTakeTheirScreensOnly();
    void targetsThatAreCutAreLeftOut();
    void processOfAWindow_data();
    void processOfAWindow();
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

QTEST_GUILESS_MAIN(X11RulesTest)
#include "tst_x11rules.moc"
