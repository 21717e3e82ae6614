// SPDX-License-Identifier: MIT
#include "editor/eraserules.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// How much of a text Backspace and Delete take.
class EraseRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backspace_data();
    void backspace();
    void forwards_data();
    void forwards();
};

// "|" is where the caret is.
void EraseRulesTest::backspace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");

    QTest::newRow("letter") << u"ab|c"_s << u"a"_s;
    QTest::newRow("start of the text") << u"|a"_s << QString();
    QTest::newRow("emoji") << u"a😀|"_s << u"a"_s;
    QTest::newRow("one of two emoji") << u"😀😁|"_s << u"😀"_s;
    QTest::newRow("family") << u"a👨‍👩‍👧‍👦|"_s << u"a"_s;
    QTest::newRow("profession with a skin tone") << u"👩🏽‍🚀|"_s << QString();
    QTest::newRow("skin tone") << u"👍👍🏿|"_s << u"👍"_s;
    QTest::newRow("flag") << u"🇩🇪🇫🇷|"_s << u"🇩🇪"_s;
    QTest::newRow("half of a flag") << u"🇩🇪🇫|"_s << u"🇩🇪"_s;
    QTest::newRow("flag made of tags") << u"a🏴󠁧󠁢󠁥󠁮󠁧󠁿|"_s << u"a"_s;
    QTest::newRow("keycap") << u"11️⃣|"_s << u"1"_s;
    QTest::newRow("keycap without a selector") << u"#\u20e3|"_s << QString();
    QTest::newRow("heart in colour") << u"❤\ufe0f|"_s << QString();
    QTest::newRow("accent") << u"e\u0301|"_s << u"e"_s;
    QTest::newRow("one of two accents") << u"o\u0302\u0301|"_s << u"o\u0302"_s;
    QTest::newRow("letter with an accent in one") << u"aé|"_s << u"a"_s;
    QTest::newRow("enclosing mark of a letter") << u"a\u20e3|"_s << u"a"_s;
    QTest::newRow("Hebrew points") << u"ש\u05c1\u05b8|"_s << u"ש\u05c1"_s;
    QTest::newRow("Arabic vowel") << u"ب\u064e|"_s << u"ب"_s;
    QTest::newRow("Devanagari vowel sign") << u"क\u093f|"_s << u"क"_s;
    QTest::newRow("Devanagari conjunct") << u"क\u094dष|"_s << u"क\u094d"_s;
    QTest::newRow("Thai") << u"ก\u0e34\u0e48|"_s << u"ก\u0e34"_s;
    QTest::newRow("Hangul jamo") << u"\u1112\u1161\u11ab|"_s << u"\u1112\u1161"_s;
    QTest::newRow("Hangul syllable") << u"한국|"_s << u"한"_s;
    QTest::newRow("line break of another system") << u"a\r\n|"_s << u"a"_s;
    QTest::newRow("line break") << u"a\r\n\n|"_s << u"a\r\n"_s;
    QTest::newRow("form of an ideograph") << u"葛\U000e0100|"_s << QString();
    QTest::newRow("selector of nothing") << u"a\n\ufe0f|"_s << u"a\n"_s;
    QTest::newRow("joiner that was typed") << u"می\u200c|"_s << u"می"_s;
    QTest::newRow("letter beyond the basic plane") << u"𞤀𞤁|"_s << u"𞤀"_s;
    QTest::newRow("in the middle of a family") << u"a👨‍👩|‍👧"_s << u"a"_s;
    QTest::newRow("lone surrogate") << u"a"_s + QChar(0xd83d) + u"|"_s << u"a"_s;
}

void EraseRulesTest::backspace()
{
    QFETCH(QString, text);
    const qsizetype caret = text.indexOf(u'|');
    text.remove(u'|');
    QTEST(text.first(eraserules::backspaceStart(text, caret)), "left");
}

void EraseRulesTest::forwards_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rest");

    QTest::newRow("letter") << u"a|bc"_s << u"c"_s;
    QTest::newRow("end of the text") << u"a|"_s << QString();
    QTest::newRow("family") << u"|👨‍👩‍👧‍👦a"_s << u"a"_s;
    QTest::newRow("skin tone") << u"|👍🏿👍"_s << u"👍"_s;
    QTest::newRow("flag") << u"|🇩🇪🇫🇷"_s << u"🇫🇷"_s;
    QTest::newRow("keycap") << u"|1️⃣1"_s << u"1"_s;
    QTest::newRow("letter with accents") << u"|o\u0302\u0301a"_s << u"a"_s;
    QTest::newRow("Hebrew letter with points") << u"|ש\u05c1\u05b8ל"_s << u"ל"_s;
    QTest::newRow("Devanagari syllable") << u"|क\u093fक"_s << u"क"_s;
    QTest::newRow("Hangul jamo") << u"|\u1112\u1161\u11ab\u1100"_s << u"\u1100"_s;
    QTest::newRow("line break of another system") << u"a|\r\nb"_s << u"b"_s;
    QTest::newRow("lone surrogate") << u"|"_s + QChar(0xde00) + u"a"_s << u"a"_s;
}

void EraseRulesTest::forwards()
{
    QFETCH(QString, text);
    const qsizetype caret = text.indexOf(u'|');
    text.remove(u'|');
    QTEST(text.sliced(eraserules::deleteEnd(text, caret)), "rest");
}

QTEST_APPLESS_MAIN(EraseRulesTest)
#include "tst_eraserules.moc"
