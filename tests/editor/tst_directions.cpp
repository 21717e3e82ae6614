// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Right-to-left texts, alone and mixed with others, in interfaces of both directions.
class DirectionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    void paragraphsBeginAtTheirSide_data();
    void paragraphsBeginAtTheirSide();
    void boxIsSeenAndClickedAtTheRight_data();
    void boxIsSeenAndClickedAtTheRight();
    void paragraphTurnsAsItIsTyped();
    void composedTextTurnsItsParagraph();
    void keysAndClicksFollowTheDirection();
    void emptyEditorBeginsAsTheInterface_data();
    void emptyEditorBeginsAsTheInterface();

private:
    /// "R" or "L" for each paragraph, according to the side where it is displayed.
    static QString sidesOf(const EditorFixture &fixture)
    {
        QString sides;
        const QTextDocument &document = fixture.document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const QRectF text = block.layout()->lineAt(0).naturalTextRect();
            sides += text.right() > fixture.edit->width() - 5 ? u'R' : text.left() < 5 ? u'L' : u'?';
        }
        return sides;
    }
};

void DirectionsTest::paragraphsBeginAtTheirSide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("interface");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sides");

    const Qt::LayoutDirection left = Qt::LeftToRight;
    const Qt::LayoutDirection right = Qt::RightToLeft;
    QTest::newRow("each for itself") << left
                                     << u"Buy milk\n☐ לקנות חלב\n☑ شراء الحليب\n# כותרת\n• one\n**שלום**"_s
                                     << u"LRRRLR"_s;
    QTest::newRow("the same in another interface")
        << right << u"Buy milk\n☐ לקנות חלב\n☑ شراء الحليب\n# כותרת\n• one\n**שלום**"_s << u"LRRRLR"_s;
    QTest::newRow("first letter") << left << u"☐ Qt בעברית\n☐ עברית in Qt\n12 קניות\n(a) ב"_s << u"LRRL"_s;
    QTest::newRow("first letter, beyond the basic plane") << left << u"☐ 𞤀𞤁\n☐ 𝐀 ב"_s << u"RL"_s;
    QTest::newRow("an isolate does not count")
        << left << u"\u2066Qt\u2069 בעברית\n\u2067ב\u2069 a"_s << u"RL"_s;
    QTest::newRow("no letter: as the one before") << left << u"☐ חלב\n☐ 123\n\n☐ \nabc\n456"_s << u"RRRRLL"_s;
    QTest::newRow("no direction before: follows the interface")
        << right << u"☐ 123\n\nabc\n☐ "_s << u"RRLL"_s;
    QTest::newRow("no direction before, opposite interface") << left << u"☐ 123\n\nחלב\n☐ "_s << u"LLRR"_s;
}

void DirectionsTest::paragraphsBeginAtTheirSide()
{
    QFETCH(Qt::LayoutDirection, interface);
    QFETCH(QString, text);
    QGuiApplication::setLayoutDirection(interface);
    EditorFixture fixture;
    fixture.load(text);
    QTEST(sidesOf(fixture), "sides");
    // As a text that the host sets before the editor exists, and as a text pasted into another.
    fixture.load(u"ab\ncd"_s);
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    fixture.pasteboard.setString(text);
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(fixture.text(), text);
    QTEST(sidesOf(fixture), "sides");
}

void DirectionsTest::boxIsSeenAndClickedAtTheRight_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<qreal>("scale");
    QTest::newRow("Hebrew") << u"☐ חלב"_s << 1.0;
    QTest::newRow("Arabic, mixed, ticked") << u"☑ حليب 2 Liter"_s << 1.0;
    QTest::newRow("wraps") << u"☐ חלב ולחם "_s.repeated(12) << 1.0;
    QTest::newRow("digits after it") << u"☐ 12 חלב"_s << 1.0;
    QTest::newRow("larger") << u"☐ חלב"_s << 1.5;
}

void DirectionsTest::boxIsSeenAndClickedAtTheRight()
{
    QFETCH(QString, line);
    QFETCH(qreal, scale);
    EditorFixture fixture;
    fixture.appearance.setTextFont({.family = {}, .scale = scale});
    fixture.load(u"Above\n"_s + line + u"\nbelow"_s);
    fixture.select(2, 2);
    fixture.paint();
    QCOMPARE(fixture.boxes().size(), 1);
    const QRectF box =
        fixture.boxes().constFirst()->boundingRect().translated(fixture.boxes().constFirst()->position());
    QCOMPARE(box.size(), QSizeF(17, 17) * scale);
    QVERIFY(box.right() <= fixture.edit->width());
    QVERIFY(box.right() > fixture.edit->width() - 6);
    // The text is to the left of its box.
    QVERIFY(fixture.rectangleOf(8).x() < box.left());

    const QChar before = line.front();
    const QChar after = before == u'☐' ? u'☑' : u'☐';
    // In the middle, and a little beside, above and below it.
    QChar expected = after;
    for (const QPointF &point :
         {box.center(), box.center() - QPointF(10 * scale, 0), box.center() - QPointF(0, 10 * scale)}) {
        QTest::mouseClick(&fixture.window, Qt::LeftButton, {}, fixture.inWindow(point));
        QCOMPARE(fixture.text().at(6), expected);
        QCOMPARE(fixture.caret(), 2);
        expected = expected == after ? before : after;
    }
    const QChar last = fixture.text().at(6);
    // Where the box of a left-to-right line would be.
    QTest::mouseClick(&fixture.window, Qt::LeftButton, {}, fixture.inWindow({8, box.center().y()}));
    QCOMPARE(fixture.text().at(6), last);
}

void DirectionsTest::paragraphTurnsAsItIsTyped()
{
    EditorFixture fixture;
    fixture.load(u"abc\n\n12"_s);
    fixture.select(4, 4);
    fixture.type(u"[ ] "_s);
    QCOMPARE(sidesOf(fixture), u"LLL"_s);
    fixture.type(u"ח"_s);
    QCOMPARE(sidesOf(fixture), u"LRR"_s);
    // The next item begins where this one does.
    fixture.type(u"\n"_s);
    QCOMPARE(fixture.text(), u"abc\n☐ ח\n☐ \n12"_s);
    QCOMPARE(sidesOf(fixture), u"LRRR"_s);
    fixture.type(u"a"_s);
    QCOMPARE(sidesOf(fixture), u"LRLL"_s);
    while (fixture.text() != u"abc\n\n12"_s)
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(sidesOf(fixture), u"LLL"_s);
    fixture.press(Qt::Key_Y, Qt::ControlModifier);
    while (fixture.text() != u"abc\n☐ ח\n☐ a\n12"_s)
        fixture.press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(sidesOf(fixture), u"LRLL"_s);
    // Joining lines.
    fixture.select(10, 10);
    fixture.type(u"\b\b\b"_s);
    QCOMPARE(fixture.text(), u"abc\n☐ חa\n12"_s);
    QCOMPARE(sidesOf(fixture), u"LRR"_s);
    fixture.select(0, 6);
    fixture.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(sidesOf(fixture), u"RR"_s);
}

void DirectionsTest::composedTextTurnsItsParagraph()
{
    EditorFixture fixture;
    fixture.load(u"abc\n☐ \n12"_s);
    fixture.select(6, 6);
    fixture.compose(u"שלום"_s);
    QCOMPARE(sidesOf(fixture), u"LRR"_s);
    QCOMPARE(fixture.edit->property("preeditText"), u"שלום"_s);
    fixture.compose({});
    QCOMPARE(sidesOf(fixture), u"LLL"_s);
    fixture.compose(u"ש"_s);
    fixture.commit(u"ש"_s);
    QCOMPARE(fixture.text(), u"abc\n☐ ש\n12"_s);
    QCOMPARE(sidesOf(fixture), u"LRR"_s);
}

void DirectionsTest::keysAndClicksFollowTheDirection()
{
    EditorFixture fixture;
    fixture.load(u"abc def\n☐ שלום עולם\nend"_s);
    const qreal width = fixture.edit->width();
    fixture.select(8, 8);
    fixture.press(Qt::Key_Left);
    QCOMPARE(fixture.caret(), 9);
    fixture.press(Qt::Key_End);
    QCOMPARE(fixture.caret(), 19);
    const qreal end = fixture.rectangleOf(19).x();
    QVERIFY(end < fixture.rectangleOf(11).x() && end > 5);
    fixture.press(Qt::Key_Left);
    QCOMPARE(fixture.caret(), 20);
    fixture.press(Qt::Key_Left);
    QCOMPARE(fixture.caret(), 19);
    fixture.press(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(fixture.caret(), 20);
    fixture.select(19, 19);
    fixture.press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(fixture.caret(), 15);
    fixture.press(Qt::Key_Home);
    QCOMPARE(fixture.caret(), 8);
    QVERIFY(fixture.edit->property("cursorRectangle").toRectF().x() > width - 5);
    // Selected from the English line into the Hebrew one, and replaced by typing.
    fixture.select(4, 15);
    fixture.type(u"x"_s);
    QCOMPARE(fixture.text(), u"abc xעולם\nend"_s);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"abc def\n☐ שלום עולם\nend"_s);
    QCOMPARE(fixture.anchor(), 4);
    QCOMPARE(fixture.caret(), 15);
    // A click in the free space beyond the end of the line, which is on its left.
    const qreal middle = fixture.rectangleOf(12).center().y();
    QTest::mouseClick(&fixture.window, Qt::LeftButton, {}, fixture.inWindow({end / 2, middle}));
    QCOMPARE(fixture.caret(), 19);
}

void DirectionsTest::emptyEditorBeginsAsTheInterface_data()
{
    QTest::addColumn<Qt::LayoutDirection>("interface");
    QTest::addColumn<QString>("placeholder");
    QTest::newRow("from the left") << Qt::LeftToRight << u"Title"_s;
    QTest::newRow("from the right") << Qt::RightToLeft << u"כותרת"_s;
    QTest::newRow("from the right, not translated") << Qt::RightToLeft << u"Title"_s;
}

void DirectionsTest::emptyEditorBeginsAsTheInterface()
{
    QFETCH(Qt::LayoutDirection, interface);
    QFETCH(QString, placeholder);
    QGuiApplication::setLayoutDirection(interface);
    EditorFixture fixture(u"placeholder: \"%1\""_s.arg(placeholder));
    fixture.edit->setFocus(false);
    const bool isRight = interface == Qt::RightToLeft;
    QCOMPARE(sidesOf(fixture), isRight ? u"R"_s : u"L"_s);
    // The placeholder is painted in that half, and nothing in the other.
    const QImage picture = fixture.picture();
    const auto isPainted = [&picture](int from, int to) {
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < 60; ++y) {
                if (picture.pixel(x, y) != picture.pixel(2, 2))
                    return true;
            }
        }
        return false;
    };
    const int half = picture.width() / 2;
    QCOMPARE(isPainted(half, picture.width()), isRight);
    QCOMPARE(isPainted(0, half), !isRight);
}

QTEST_MAIN(DirectionsTest)
#include "tst_directions.moc"
