// SPDX-License-Identifier: MIT
#include "panel/highlight.h"
#include "panel/panelplacement.h"
#include "panel/relativetime.h"
#include "panel/searchtext.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Ranges = QList<TextRange>;
Q_DECLARE_METATYPE(vesk::TextRange)

/// The panel's pure rules: its position, what a search finds and where, and how times are worded.
class PanelRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placement_data();
    void placement();
    void searchKeepsLineBreaks();
    void containsByLanguage_data();
    void containsByLanguage();
    void highlights_data();
    void highlights();
    void relativeTime_data();
    void relativeTime();
};

void PanelRulesTest::placement_data()
{
    QTest::addColumn<QRectF>("visible");
    QTest::addColumn<qreal>("height");
    QTest::addColumn<QRectF>("frame");

    QTest::newRow("bottom right") << QRectF(0, 0, 1600, 1000) << 620.0 << QRectF(1150, 10, 440, 620);
    QTest::newRow("over a dock") << QRectF(0, 60, 1600, 900) << 620.0 << QRectF(1150, 70, 440, 620);
    QTest::newRow("second screen, left and below")
        << QRectF(-1280, -300, 1280, 800) << 620.0 << QRectF(-450, -290, 440, 620);
    QTest::newRow("higher than the screen")
        << QRectF(0, 0, 1600, 800) << 1000.0 << QRectF(1150, 10, 440, 780);
    QTest::newRow("shrunk") << QRectF(0, 0, 1600, 800) << 200.0 << QRectF(1150, 10, 440, 420);
    QTest::newRow("a screen below the minimum")
        << QRectF(0, 0, 640, 400) << 620.0 << QRectF(190, 10, 440, 380);
}

void PanelRulesTest::placement()
{
    QFETCH(QRectF, visible);
    QFETCH(qreal, height);
    QTEST(panelFrame(visible, height), "frame");
}

void PanelRulesTest::searchKeepsLineBreaks()
{
    QCOMPARE(searchtext::query(u" \t\u00a0tea time \t"_s), u"tea time"_s);
    QCOMPARE(searchtext::query(u" \n tea \n"_s), u"\n tea \n"_s);
    QCOMPARE(searchtext::query(u" \t "_s), QString());
}

void PanelRulesTest::containsByLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("query");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("case") << u"en"_s << u"Green TEA"_s << u"tea"_s << true;
    QTest::newRow("accents count") << u"en"_s << u"Caf\u00e9"_s << u"cafe"_s << false;
    QTest::newRow("accented letters have a case too") << u"en"_s << u"CAF\u00c9"_s << u"caf\u00e9"_s << true;
    QTest::newRow("accents in two ways of writing") << u"en"_s << u"Cafe\u0301"_s << u"caf\u00e9"_s << true;
    QTest::newRow("an accent is not a separate letter") << u"en"_s << u"Cafe\u0301"_s << u"cafe"_s << false;
    QTest::newRow("Turkish: I is not i") << u"tr"_s << u"ILIK"_s << u"ilik"_s << false;
    QTest::newRow("Turkish: I is dotless i") << u"tr"_s << u"ILIK"_s << u"\u0131l\u0131k"_s << true;
}

void PanelRulesTest::containsByLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, text);
    QFETCH(QString, query);
    QLocale::setDefault(QLocale(language));
    QTEST(searchtext::folded(text).contains(searchtext::folded(query)), "isFound");
}

void PanelRulesTest::highlights_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("query");
    QTest::addColumn<Ranges>("ranges");

    QTest::newRow("no query") << u"abc"_s << QString() << Ranges{};
    QTest::newRow("case") << u"Tea, TEA, tea"_s << u"tEa"_s << Ranges{{0, 3}, {5, 3}, {10, 3}};
    QTest::newRow("accents in the text") << u"Caf\u00e9 Caf\u00e9"_s << u"cafe"_s << Ranges{{0, 4}, {5, 4}};
    QTest::newRow("accents in the query") << u"cafe"_s << u"caf\u00e9"_s << Ranges{{0, 4}};
    QTest::newRow("decomposed: the mark goes along") << u"cafe\u0301 x"_s << u"cafe"_s << Ranges{{0, 5}};
    QTest::newRow("decomposed: what follows is in place") << u"e\u0301 tea"_s << u"tea"_s << Ranges{{3, 3}};
    QTest::newRow("matches do not overlap") << u"aaaa"_s << u"aa"_s << Ranges{{0, 2}, {2, 2}};
    QTest::newRow("surrogates count two") << u"\U0001F600 tea"_s << u"tea"_s << Ranges{{3, 3}};
    QTest::newRow("sharp s is two letters") << u"Stra\u00dfe"_s << u"strasse"_s << Ranges{{0, 6}};
    QTest::newRow("half of a sharp s is all of it") << u"Stra\u00dfe"_s << u"s"_s << Ranges{{0, 1}, {4, 1}};
    QTest::newRow("only marks in the query") << u"abc"_s << u"\u0301"_s << Ranges{};
    QTest::newRow("markup is text") << u"<b>a</b> & a"_s << u"a"_s << Ranges{{3, 1}, {11, 1}};
}

void PanelRulesTest::highlights()
{
    QFETCH(QString, text);
    QFETCH(QString, query);
    QTEST(matchRanges(text, query), "ranges");
}

void PanelRulesTest::relativeTime_data()
{
    QTest::addColumn<std::chrono::seconds>("age");
    QTest::addColumn<QString>("text");

    QTest::newRow("59 seconds") << 59s << u"Just now"_s;
    QTest::newRow("60 seconds") << 60s << u"1 min. ago"_s;
    QTest::newRow("yet to come") << -300s << u"Just now"_s;
    QTest::newRow("almost an hour") << 3599s << u"59 min. ago"_s;
    QTest::newRow("three hours") << std::chrono::seconds(3h) << u"3 hr. ago"_s;
    QTest::newRow("a day") << std::chrono::seconds(25h) << u"Yesterday"_s;
    QTest::newRow("six days") << std::chrono::seconds(6 * 24h) << u"6 days ago"_s;
    QTest::newRow("a week") << std::chrono::seconds(8 * 24h) << u"Last wk."_s;
    QTest::newRow("two months") << std::chrono::seconds(62 * 24h) << u"2 mo. ago"_s;
    QTest::newRow("a year") << std::chrono::seconds(380 * 24h) << u"Last yr."_s;
}

void PanelRulesTest::relativeTime()
{
    QFETCH(std::chrono::seconds, age);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const Date now{std::chrono::years{50}};
    QTEST(RelativeTime().text(now - age, now), "text");
}

QTEST_APPLESS_MAIN(PanelRulesTest)
#include "tst_panelrules.moc"
