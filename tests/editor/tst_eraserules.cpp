// SPDX-License-Identifier: MIT
#include "editor/eraserules.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// How much of a text Backspace and Delete erase.
class EraseRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void erases_data();
    void erases();
};

// "|" marks the caret. The expected rest is the text before it for Backspace, and the text after it for
// Delete.
void EraseRulesTest::erases_data()
{
    QTest::addColumn<bool>("isForwards");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    const auto back = [](const char *name) -> QTestData & {
        return QTest::addRow("Backspace, %s", name) << false;
    };
    const auto forwards = [](const char *name) -> QTestData & {
        return QTest::addRow("Delete, %s", name) << true;
    };

    back("letter") << u"ab|c"_s << u"a"_s;
    back("start of the text") << u"|a"_s << QString();
    back("emoji") << u"a😀|"_s << u"a"_s;
    back("one of two emoji") << u"😀😁|"_s << u"😀"_s;
    back("family") << u"a👨‍👩‍👧‍👦|"_s << u"a"_s;
    back("profession with a skin tone") << u"👩🏽‍🚀|"_s << QString();
    back("skin tone") << u"👍👍🏿|"_s << u"👍"_s;
    back("flag") << u"🇩🇪🇫🇷|"_s << u"🇩🇪"_s;
    back("half of a flag") << u"🇩🇪🇫|"_s << u"🇩🇪"_s;
    back("flag made of tags") << u"a🏴󠁧󠁢󠁥󠁮󠁧󠁿|"_s << u"a"_s;
    back("keycap") << u"11️⃣|"_s << u"1"_s;
    back("keycap without a selector") << u"#\u20e3|"_s << QString();
    back("heart in colour") << u"❤\ufe0f|"_s << QString();
    back("accent") << u"e\u0301|"_s << u"e"_s;
    back("one of two accents") << u"o\u0302\u0301|"_s << u"o\u0302"_s;
    back("letter with an accent in one") << u"aé|"_s << u"a"_s;
    back("enclosing mark of a letter") << u"a\u20e3|"_s << u"a"_s;
    back("Hebrew points") << u"ש\u05c1\u05b8|"_s << u"ש\u05c1"_s;
    back("Arabic vowel") << u"ب\u064e|"_s << u"ب"_s;
    back("Devanagari vowel sign") << u"क\u093f|"_s << u"क"_s;
    back("Devanagari conjunct") << u"क\u094dष|"_s << u"क\u094d"_s;
    back("Thai") << u"ก\u0e34\u0e48|"_s << u"ก\u0e34"_s;
    back("Hangul jamo") << u"\u1112\u1161\u11ab|"_s << u"\u1112\u1161"_s;
    back("Hangul syllable") << u"한국|"_s << u"한"_s;
    back("line break of another system") << u"a\r\n|"_s << u"a"_s;
    back("line break") << u"a\r\n\n|"_s << u"a\r\n"_s;
    back("form of an ideograph") << u"葛\U000e0100|"_s << QString();
    back("selector of nothing") << u"a\n\ufe0f|"_s << u"a\n"_s;
    back("joiner that was typed") << u"می\u200c|"_s << u"می"_s;
    back("letter beyond the basic plane") << u"𞤀𞤁|"_s << u"𞤀"_s;
    back("in the middle of a family") << u"a👨‍👩|‍👧"_s << u"a"_s;
    back("lone surrogate") << u"a"_s + QChar(0xd83d) + u"|"_s << u"a"_s;

    forwards("letter") << u"a|bc"_s << u"c"_s;
    forwards("end of the text") << u"a|"_s << QString();
    forwards("family") << u"|👨‍👩‍👧‍👦a"_s << u"a"_s;
    forwards("skin tone") << u"|👍🏿👍"_s << u"👍"_s;
    forwards("flag") << u"|🇩🇪🇫🇷"_s << u"🇫🇷"_s;
    forwards("keycap") << u"|1️⃣1"_s << u"1"_s;
    forwards("letter with accents") << u"|o\u0302\u0301a"_s << u"a"_s;
    forwards("Hebrew letter with points") << u"|ש\u05c1\u05b8ל"_s << u"ל"_s;
    forwards("Devanagari syllable") << u"|क\u093fक"_s << u"क"_s;
    forwards("Hangul jamo") << u"|\u1112\u1161\u11ab\u1100"_s << u"\u1100"_s;
    forwards("line break of another system") << u"a|\r\nb"_s << u"b"_s;
    forwards("lone surrogate") << u"|"_s + QChar(0xde00) + u"a"_s << u"a"_s;
}

void EraseRulesTest::erases()
{
    QFETCH(const bool, isForwards);
    QFETCH(QString, text);
    const qsizetype caret = text.indexOf(u'|');
    text.remove(u'|');
    QTEST(isForwards ? text.sliced(eraserules::deleteEnd(text, caret))
                     : text.first(eraserules::backspaceStart(text, caret)),
          "left");
}

QTEST_APPLESS_MAIN(EraseRulesTest)
#include "tst_eraserules.moc"
