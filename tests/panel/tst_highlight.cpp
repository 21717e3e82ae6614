// SPDX-License-Identifier: MIT
#include "panel/highlight.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

using Ranges = QList<TextRange>;
Q_DECLARE_METATYPE(vesk::TextRange)

class HighlightTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
};

void HighlightTest::matches_data()
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

void HighlightTest::matches()
{
    QFETCH(QString, text);
    QFETCH(QString, query);
    QTEST(matchRanges(text, query), "ranges");
}

QTEST_APPLESS_MAIN(HighlightTest)
#include "tst_highlight.moc"
