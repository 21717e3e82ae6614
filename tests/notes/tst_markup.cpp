// SPDX-License-Identifier: MIT
#include "notes/markup.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace vesk;

class TestMarkup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void derivedValues_data();
    void derivedValues();
    void checklistItems_data();
    void checklistItems();
    void toggledItem_data();
    void toggledItem();
    void rewriting_data();
    void rewriting();
    void adding_data();
    void adding();
    void ends_data();
    void ends();
    void wellFormed_data();
    void wellFormed();
};

namespace {

constexpr qsizetype kHuge = std::numeric_limits<qsizetype>::max();

QString loneSurrogate(char16_t unit)
{
    return QString(QChar(unit));
}

} // namespace

void TestMarkup::derivedValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("preview");

    QTest::newRow("empty") << u""_s << u""_s << u""_s;
    QTest::newRow("nothing but white space") << u" \t\n \n"_s << u""_s << u""_s;
    QTest::newRow("one line and empty ones") << u"\n\n Milk\n\n"_s << u"Milk"_s << u""_s;
    QTest::newRow("several lines, empty ones between") << u"a\n\n b \nc\n"_s << u"a"_s << u"b · c"_s;
    QTest::newRow("typed forms are no markers") << u"# **Plan**\n- eggs"_s << u"Plan"_s << u"- eggs"_s;
    QTest::newRow("box, then bullet: bullet stays") << u"☐ • milk"_s << u"• milk"_s << u""_s;
    QTest::newRow("box, ticked box, heading: all go") << u"☐ ☑ # a"_s << u"a"_s << u""_s;
    QTest::newRow("ticked, then unticked: the second stays") << u"☑ ☐ a"_s << u"☐ a"_s << u""_s;
    QTest::newRow("a marker twice: once removed") << u"# # a"_s << u"# a"_s << u""_s;
    QTest::newRow("marker without its space") << u"#a\n•b\n☐c"_s << u"#a"_s << u"•b · ☐c"_s;
    QTest::newRow("marker with another space") << u"#\u00A0a"_s << u"#\u00A0a"_s << u""_s;
    QTest::newRow("marker alone is trimmed to no marker") << u"# \nx"_s << u"#"_s << u"x"_s;
    QTest::newRow("space after the marker stays") << u"#  a"_s << u" a"_s << u""_s;
    QTest::newRow("odd asterisks") << u"***a***"_s << u"*a*"_s << u""_s;
    QTest::newRow("asterisks only: an empty title, but the title line") << u"****\nb"_s << u""_s << u"b"_s;
    QTest::newRow("empty display in the preview keeps its separator") << u"a\n**\nb"_s << u"a"_s << u" · b"_s;
    QTest::newRow("carriage return stays") << u"a\r\nb\r"_s << u"a\r"_s << u"b\r"_s;
    QTest::newRow("a carriage return is not an empty line") << u"\r\na"_s << u"\r"_s << u"a"_s;
    QTest::newRow("U+2028 separates no lines") << u"a\u2028b"_s << u"a\u2028b"_s << u""_s;
    QTest::newRow("Unicode spaces are trimmed") << u"\u3000\u00A0a\u2003\u202F"_s << u"a"_s << u""_s;
    QTest::newRow("zero width space is not") << u"\u200Ba"_s << u"\u200Ba"_s << u""_s;
    QTest::newRow("NUL") << QString(u"\0a\nb\0"_s) << u"\0a"_s << u"b\0"_s;
    QTest::newRow("combining mark on the marker's space") << u"# \u0301a"_s << u"\u0301a"_s << u""_s;
}

void TestMarkup::derivedValues()
{
    QFETCH(QString, text);
    QTEST(markup::title(text), "title");
    QTEST(markup::preview(text), "preview");
}

void TestMarkup::checklistItems_data()
{
    using Items = QList<ChecklistItem>;
    QTest::addColumn<QString>("text");
    QTest::addColumn<Items>("items");

    QTest::newRow("empty") << u""_s << Items{};
    QTest::newRow("indented, trailing space, ticked")
        << u"Groceries\n  ☐ milk \n☑ eggs"_s << Items{{1, u"milk"_s, false}, {2, u"eggs"_s, true}};
    QTest::newRow("indented by an Unicode space") << u"\u3000☐ milk"_s << Items{{0, u"milk"_s, false}};
    QTest::newRow("without the space") << u"☐\n☐milk\n☑\t"_s << Items{};
    QTest::newRow("box within a line") << u"a ☐ b"_s << Items{};
    QTest::newRow("empty but for a space and a letter") << u"☐  x"_s << Items{{0, u" x"_s, false}};
    QTest::newRow("box after U+2028") << u"a\u2028☐ b"_s << Items{};
    QTest::newRow("carriage return keeps an empty box") << u"☐ \r"_s << Items{{0, u"\r"_s, false}};
}

void TestMarkup::checklistItems()
{
    QFETCH(QString, text);
    QFETCH(QList<ChecklistItem>, items);
    QCOMPARE(markup::checklistItems(text), items);

    const qsizetype done = std::ranges::count_if(items, &ChecklistItem::isDone);
    const std::optional<Progress> progress = markup::progress(text);
    QCOMPARE(progress.has_value(), !items.isEmpty());
    if (progress)
        QCOMPARE(*progress, (Progress{.done = done, .total = items.size()}));
}

void TestMarkup::toggledItem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("line");
    QTest::addColumn<QString>("expected");

    const QString groceries = u"Groceries\n  ☐ milk \n☑ eggs"_s;
    QTest::newRow("ticks; indentation and trailing space stay")
        << groceries << qsizetype{1} << u"Groceries\n  ☑ milk \n☑ eggs"_s;
    QTest::newRow("unticks the last line") << groceries << qsizetype{2} << u"Groceries\n  ☐ milk \n☐ eggs"_s;
    QTest::newRow("line without a box") << groceries << qsizetype{0} << groceries;
    QTest::newRow("first line after the end") << groceries << qsizetype{3} << groceries;
    QTest::newRow("huge line number") << groceries << kHuge << groceries;
    QTest::newRow("most negative line number") << groceries << -kHuge - 1 << groceries;
    QTest::newRow("empty text") << u""_s << qsizetype{0} << u""_s;
    // Unlike in the list of items.
    QTest::newRow("other spaces are not indentation") << u"\u00A0☐ a"_s << qsizetype{0} << u"\u00A0☐ a"_s;
    QTest::newRow("box with nothing after it") << u"☐ "_s << qsizetype{0} << u"☑ "_s;
    QTest::newRow("space of the box in the next line") << u"☐\n x"_s << qsizetype{0} << u"☐\n x"_s;
    QTest::newRow("second box stays") << u"☐ ☐ a"_s << qsizetype{0} << u"☑ ☐ a"_s;
    QTest::newRow("carriage returns") << u"a\r\n☐ b\r\n"_s << qsizetype{1} << u"a\r\n☑ b\r\n"_s;
}

void TestMarkup::toggledItem()
{
    QFETCH(QString, text);
    QFETCH(qsizetype, line);
    QTEST(markup::toggledItem(text, line), "expected");
}

using Rewrite = QString (*)(const QString &);

void TestMarkup::rewriting_data()
{
    QTest::addColumn<Rewrite>("rewrite");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const Rewrite checklist = markup::checklist;
    QTest::newRow("checklist: markers replaced") << checklist << u"☑ done\n\n • two"_s << u"☐ done\n☐ two"_s;
    QTest::newRow("checklist: nothing") << checklist << u" \n\t"_s << u""_s;
    QTest::newRow("checklist: bold goes") << checklist << u"**a**\nb"_s << u"☐ a\n☐ b"_s;
    QTest::newRow("checklist: a line of bold marks alone") << checklist << u"**\nb"_s << u"☐ \n☐ b"_s;

    const Rewrite expand = markup::expandMarkup;
    QTest::newRow("expand: every form")
        << expand << u"- no\n- one\n[x] two\n  [ ] three\n[X] four\n[] five\n[ ] six\n* seven"_s
        << u"- no\n• one\n☑ two\n  [ ] three\n[X] four\n☐ five\n☐ six\n• seven"_s;
    QTest::newRow("expand: one form a line") << expand << u"\n- [] a\n[] - b"_s << u"\n• [] a\n☐ - b"_s;
    QTest::newRow("expand: form without its space") << expand << u"t\n-a\n[]\n-"_s << u"t\n-a\n[]\n-"_s;
    QTest::newRow("expand: empty lines stay") << expand << u"\n\n- \n"_s << u"\n\n• \n"_s;
    QTest::newRow("expand: empty") << expand << u""_s << u""_s;

    const Rewrite clean = markup::cleanChecklist;
    QTest::newRow("clean: empty boxes and lines")
        << clean << u"Trip\n☐ passport\n☐ \n\n☐"_s << u"Trip\n☐ passport"_s;
    QTest::newRow("clean: ticked empty box first") << clean << u"\t☑ \n a "_s << u"a"_s;
    QTest::newRow("clean: two boxes are kept") << clean << u"☐☐\n☐ ☐"_s << u"☐☐\n☐ ☐"_s;
    QTest::newRow("clean: nothing left") << clean << u"☐\n\n☑ "_s << u""_s;
}

void TestMarkup::rewriting()
{
    QFETCH(Rewrite, rewrite);
    QFETCH(QString, text);
    QTEST(rewrite(text), "expected");
}

using Add = QString (*)(const QString &, const QString &);

void TestMarkup::adding_data()
{
    QTest::addColumn<Add>("add");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("expected");

    const Add items = markup::withChecklistItems;
    QTest::newRow("items: after the last box")
        << items << u"List\n☐ a\n☐ b\nNotes after"_s << u"c"_s << u"List\n☐ a\n☐ b\n☐ c\nNotes after"_s;
    QTest::newRow("items: no box yet") << items << u"Only text\n"_s << u"c"_s << u"Only text\n☐ c"_s;
    QTest::newRow("items: to nothing") << items << u""_s << u"c"_s << u"\n☐ c"_s;
    QTest::newRow("items: several stay together")
        << items << u"☐ a\nx"_s << u"c\n\n☑ d"_s << u"☐ a\n☐ c\n☐ d\nx"_s;
    QTest::newRow("items: none to add") << items << u"☐ a\nx"_s << u" \n"_s << u"☐ a\n\nx"_s;
    QTest::newRow("items: every kind of line break goes from both ends")
        << items << u"\u2029\r\n☐ a\n\u0085\u2028\v\f"_s << u"b"_s << u"☐ a\n☐ b"_s;
    QTest::newRow("items: spaces at the end stay") << items << u"☐ a\nx \n"_s << u"b"_s << u"☐ a\n☐ b\nx "_s;
    QTest::newRow("items: indented box counts, its line stays")
        << items << u"a\n  ☐ b \nc"_s << u"d"_s << u"a\n  ☐ b \n☐ d\nc"_s;

    const Add append = markup::appended;
    QTest::newRow("append: after an empty line")
        << append << u"Title\nbody"_s << u"new"_s << u"Title\nbody\n\nnew"_s;
    QTest::newRow("append: after an empty line, too, if a line feed is there")
        << append << u"Title\nbody\n"_s << u"new"_s << u"Title\nbody\n\nnew"_s;
    QTest::newRow("append: to a checklist")
        << append << u"List\n☐ x\n\n"_s << u"a\n\n b"_s << u"List\n☐ x\n☐ a\n☐ b"_s;
    QTest::newRow("append: to nothing") << append << u""_s << u"new"_s << u"\n\nnew"_s;
    QTest::newRow("append: unchanged argument") << append << u"a"_s << u" - b\n"_s << u"a\n\n - b\n"_s;
    QTest::newRow("append: box is not the last line") << append << u"☐ x\ny"_s << u"a"_s << u"☐ x\ny\n\na"_s;
    QTest::newRow("append: leading breaks of a checklist go")
        << append << u"\n\n☑ x"_s << u"a"_s << u"☑ x\n☐ a"_s;
    QTest::newRow("append: carriage return at the end") << append << u"a\r"_s << u"b"_s << u"a\r\n\nb"_s;
    QTest::newRow("append: nothing to a checklist") << append << u"☐ x"_s << u""_s << u"☐ x\n"_s;
}

void TestMarkup::adding()
{
    QFETCH(Add, add);
    QFETCH(QString, text);
    QFETCH(QString, added);
    QTEST(add(text, added), "expected");
}

void TestMarkup::ends_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("trimmed");

    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("every kind") << u" \t\u00A0\u3000\n\v\f\r\u0085\u2028\u2029"_s << u""_s;
    QTest::newRow("inside stays") << u"\n a \n b\u2028\u2003"_s << u"a \n b"_s;
    QTest::newRow("NUL is text") << u" \0 "_s << u"\0"_s;
    QTest::newRow("zero width space is text") << u"\u200B"_s << u"\u200B"_s;
    QTest::newRow("unit separator is text") << u"\x1F"_s << u"\x1F"_s;
}

void TestMarkup::ends()
{
    QFETCH(QString, text);
    QFETCH(QString, trimmed);
    QCOMPARE(markup::trimmed(text), trimmed);
    QCOMPARE(markup::isBlank(text), trimmed.isEmpty());
}

void TestMarkup::wellFormed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const QString high = loneSurrogate(0xD83D);
    const QString low = loneSurrogate(0xDE00);
    const QString replaced = u"\uFFFD"_s;
    QTest::newRow("high at the end") << u"a"_s + high << u"a"_s + replaced;
    QTest::newRow("low at the start") << low + u"a"_s << replaced + u"a"_s;
    QTest::newRow("two highs, then a low") << high + high + low << replaced + high + low;
    QTest::newRow("wrong way round") << low + high << replaced + replaced;
}

void TestMarkup::wellFormed()
{
    QFETCH(QString, text);
    QTEST(markup::wellFormed(text), "expected");
}

QTEST_GUILESS_MAIN(TestMarkup)
#include "tst_markup.moc"
