// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include "components/theme.h"
#include "editor/linestyle.h"
#include "editor/notetextview.h"

#include <QAccessible>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

constexpr auto kTitled = "firstLineIsTitle: true; titleBoost: 7; titleWeight: Font.Bold";

} // namespace

/// The editor's appearance, the mouse, and what a screen reader finds.
class EditorLooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsOfALine_data();
    void partsOfALine();
    void titleIsTheFirstLineWithContent();
    void boxIsACircleInItsLine();
    void clickTicks_data();
    void clickTicks();
    void themeChangesEverything();
    void placeholderLooksLikeTheTitle();
    void hostHearsTheHeight();
    void caretStaysInSight();
    void selectedTextIsDragged();
    void wordsAndLinesAreClicked();
    void selectedTextIsPastedByTheMiddleButton();
    void selectingTheSameTextAgainTakesPrimaryBack();
    void droppedTextIsNotAskedOfTheToolkit();
    void menuEdits();
    void screenReaderFindsBoxes();
};

void EditorLooksTest::partsOfALine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isTitle");
    QTest::addColumn<QList<StyledPart>>("parts");

    using enum TextStyle;
    using Parts = QList<StyledPart>;
    QTest::newRow("text") << u"a #b • c"_s << false << Parts{};
    QTest::newRow("title") << u"**a**"_s << true << Parts{{0, 5, Title}};
    QTest::newRow("title and heading") << u"# a"_s << true << Parts{{0, 3, Title}, {0, 2, HeadingMarker}};
    QTest::newRow("title and bullet") << u"• a"_s << true << Parts{{0, 3, Title}, {0, 1, TitleBullet}};
    QTest::newRow("title and done") << u"☑ a"_s << true << Parts{{0, 3, Title}, {0, 1, Box}, {2, 1, Done}};
    QTest::newRow("heading and bold")
        << u"# **a**"_s << false
        << Parts{{0, 7, Heading}, {0, 2, HeadingMarker}, {4, 1, Bold}, {2, 2, BoldMarks}, {5, 2, BoldMarks}};
    QTest::newRow("bullet") << u"• a"_s << false << Parts{{0, 1, Bullet}};
    QTest::newRow("box") << u"☐ a"_s << false << Parts{{0, 1, Box}};
    QTest::newRow("done") << u"☑ ab"_s << false << Parts{{0, 1, Box}, {2, 2, Done}};
    QTest::newRow("done, nothing") << u"☑ "_s << false << Parts{{0, 1, Box}};
    QTest::newRow("no marker") << u"☐a"_s << false << Parts{};
    QTest::newRow("nothing bold") << u"**** a ** b"_s << false
                                  << Parts{{2, 5, Bold}, {0, 2, BoldMarks}, {7, 2, BoldMarks}};
    QTest::newRow("four marks") << u"****"_s << false << Parts{};
    QTest::newRow("shortest spans") << u"**a**b**c**"_s << false
                                    << Parts{{2, 1, Bold}, {0, 2, BoldMarks}, {3, 2, BoldMarks},
                                             {8, 1, Bold}, {6, 2, BoldMarks}, {9, 2, BoldMarks}};
}

void EditorLooksTest::partsOfALine()
{
    QFETCH(QString, line);
    QFETCH(bool, isTitle);
    QTEST(styledParts(line, isTitle), "parts");
}

void EditorLooksTest::titleIsTheFirstLineWithContent()
{
    EditorFixture fixture(QString::fromLatin1(kTitled));
    fixture.load(u"\n \t\nTitle\nbody"_s);
    const qreal title = fixture.rectangleOf(6).height();
    const qreal body = fixture.rectangleOf(11).height();
    QVERIFY(title > body + 5);
    QCOMPARE(fixture.rectangleOf(0).height(), body);
    fixture.type(u"x"_s);
    QCOMPARE(fixture.rectangleOf(0).height(), title);
    QCOMPARE(fixture.rectangleOf(7).height(), body);
    fixture.editor->setProperty("firstLineIsTitle", false);
    QCOMPARE(fixture.rectangleOf(0).height(), body);
}

void EditorLooksTest::boxIsACircleInItsLine()
{
    EditorFixture fixture;
    fixture.appearance.setColorScheme(Appearance::ColorScheme::Dark);
    fixture.edit->setFocus(false);
    fixture.load(u"☐ \n☑ \na ☑"_s);
    const auto *theme =
        fixture.engine.singletonInstance<Theme *>(qmlTypeId("Vesk.Components", 1, 0, "Theme"));
    const QImage picture = fixture.picture();
    QCOMPARE(fixture.boxes().size(), 2);
    for (const QQuickItem *box : fixture.boxes()) {
        const bool isTicked = box->property("isTicked").toBool();
        const QPoint corner = fixture.inWindow(box->position());
        const QPoint middle = corner + QPoint(8, 8);
        QCOMPARE(box->size(), QSizeF(17, 17));
        // Above the tick, on the ring, and in the corner of its square.
        QCOMPARE(picture.pixelColor(middle - QPoint(0, 5)),
                 isTicked ? theme->accentFill() : theme->background());
        QVERIFY(picture.pixelColor(middle - QPoint(8, 0)) != theme->background());
        QCOMPARE(picture.pixelColor(corner), theme->background());
        // Where the two strokes of the tick meet.
        const QColor tick = picture.pixelColor(corner + QPoint(7, 11));
        QCOMPARE(isTicked ? tick.lightnessF() > 0.9F : tick == theme->background(), true);

        const QRectF line = fixture.rectangleOf(isTicked ? 3 : 0);
        QVERIFY(std::abs(box->y() + 8.5 - line.center().y()) <= 2);
        QVERIFY(fixture.rectangleOf(isTicked ? 5 : 2).x() > box->x() + 18);
    }
    fixture.appearance.setTextFont({.family = {}, .scale = 2});
    QTRY_COMPARE(fixture.boxes().constFirst()->size(), QSizeF(34, 34));
    QVERIFY(fixture.rectangleOf(2).x() > fixture.boxes().constFirst()->x() + 34);
}

void EditorLooksTest::clickTicks_data()
{
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<bool>("isTicked");

    QTest::newRow("middle") << QPointF(8, 8) << true;
    QTest::newRow("beside it") << QPointF(20, 8) << true;
    QTest::newRow("above it") << QPointF(8, -5) << true;
    QTest::newRow("well above it") << QPointF(8, -12) << false;
    QTest::newRow("on the text") << QPointF(34, 8) << false;
}

void EditorLooksTest::clickTicks()
{
    QFETCH(QPointF, offset);
    QFETCH(bool, isTicked);
    EditorFixture fixture;
    fixture.load(u"Above\n☐ Buy ☐ milk\nbelow"_s);
    fixture.select(21, 19);
    fixture.paint();
    const QPoint point = fixture.inWindow(fixture.boxes().constFirst()->position() + offset);
    QTest::mouseClick(&fixture.window, Qt::LeftButton, {}, point);
    QCOMPARE(fixture.text().at(6), isTicked ? u'☑' : u'☐');
    QCOMPARE(fixture.caret() == 19 && fixture.anchor() == 21, isTicked);

    const QRectF inside = fixture.rectangleOf(12);
    QTest::mouseClick(&fixture.window, Qt::LeftButton, {}, fixture.inWindow(inside.center() + QPointF(2, 0)));
    QCOMPARE(fixture.text().at(12), u'☐');
    QCOMPARE(fixture.caret(), 12);
}

void EditorLooksTest::themeChangesEverything()
{
    EditorFixture fixture(QString::fromLatin1(kTitled));
    fixture.edit->setFocus(false);
    fixture.load(u"Title\n☑ done\n• **b**"_s);
    fixture.paint();
    fixture.appearance.setColorScheme(Appearance::ColorScheme::Dark);
    const QImage changed = fixture.picture();
    fixture.load({});
    fixture.load(u"Title\n☑ done\n• **b**"_s);
    QCOMPARE(changed, fixture.picture());
    QVERIFY(!fixture.controller.textView()->canUndo());
}

void EditorLooksTest::placeholderLooksLikeTheTitle()
{
    EditorFixture fixture(QString::fromLatin1(kTitled) + u"; placeholder: \"Title\""_s);
    const auto findPlaceholder = [&fixture]() -> QQuickItem * {
        const QList<QQuickItem *> items = fixture.edit->childItems();
        for (QQuickItem *item : items) {
            if (item->isVisible() && item->property("text") == u"Title"_s)
                return item;
        }
        return nullptr;
    };
    const QQuickItem *placeholder = findPlaceholder();
    QVERIFY(placeholder);
    QCOMPARE(placeholder->property("font").value<QFont>().pixelSize(), 21);
    QCOMPARE(placeholder->property("font").value<QFont>().weight(), QFont::Bold);
    const QPointF place = placeholder->position();
    fixture.compose(u"n"_s);
    QVERIFY(!findPlaceholder());
    fixture.commit(u"T"_s);
    QVERIFY(!findPlaceholder());
    // What has been typed is now in its place.
    QCOMPARE(fixture.rectangleOf(0).topLeft(), place);
}

void EditorLooksTest::hostHearsTheHeight()
{
    EditorFixture fixture;
    QSignalSpy heights(fixture.editor, SIGNAL(contentHeightReported(qreal)));
    fixture.load(u"one"_s);
    QTRY_VERIFY(!heights.isEmpty());
    const qreal one = heights.constLast().constFirst().toReal();
    QCOMPARE(one, fixture.edit->implicitHeight() + 8);
    heights.clear();
    fixture.type(u"x"_s);
    QCoreApplication::processEvents();
    QCOMPARE(heights.count(), 0);
    fixture.type(u"\n"_s);
    QTRY_COMPARE(heights.count(), 1);
    QVERIFY(heights.constLast().constFirst().toReal() > one + 15);

    // Too narrow for its real layout.
    fixture.editor->setSize(QSizeF(20, 100));
    QCoreApplication::processEvents();
    QCOMPARE(heights.count(), 1);
}

void EditorLooksTest::caretStaysInSight()
{
    EditorFixture fixture;
    fixture.load(u"☐ line\n"_s.repeated(200));
    fixture.paint();
    QVERIFY(fixture.boxes().size() < 20);
    const QQuickItem *first = fixture.boxes().constFirst();
    QCOMPARE(first->y() < 20, true);
    fixture.press(Qt::Key_End, Qt::ControlModifier);
    fixture.type(u"last"_s);
    fixture.paint();
    const QPoint caret = fixture.inWindow(fixture.rectangleOf(fixture.caret()).center());
    QVERIFY(QRect(QPoint(), fixture.window.size()).contains(caret));
    fixture.press(Qt::Key_PageUp);
    QVERIFY(fixture.caret() < fixture.text().size() - qsizetype{4} * 7);
    fixture.press(Qt::Key_Home, Qt::ControlModifier);
    fixture.paint();
    QVERIFY(fixture.inWindow(QPointF()).y() > 0);
    QVERIFY(fixture.boxes().constFirst()->y() < 20);
}

void EditorLooksTest::selectedTextIsDragged()
{
    EditorFixture fixture;
    fixture.load(u"one two three"_s);
    fixture.select(0, 4);
    const auto drag = [&fixture](int from, int to, Qt::KeyboardModifiers modifiers) {
        const QPoint start = fixture.inWindow(fixture.rectangleOf(from).center());
        const QPoint end = fixture.inWindow(fixture.rectangleOf(to).center());
        QTest::mousePress(&fixture.window, Qt::LeftButton, {}, start);
        QTest::mouseMove(&fixture.window, (start + end) / 2);
        QTest::mouseMove(&fixture.window, end);
        QTest::mouseRelease(&fixture.window, Qt::LeftButton, modifiers, end);
    };
    drag(2, 8, {});
    QCOMPARE(fixture.text(), u"two one three"_s);
    QCOMPARE(fixture.anchor(), 4);
    QCOMPARE(fixture.caret(), 8);
    drag(6, 0, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"one two one three"_s);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"one two three"_s);
    QCOMPARE(fixture.caret(), 4);
    // A click on the selection is an ordinary click.
    const QPoint inside = fixture.inWindow(fixture.rectangleOf(2).center());
    QTest::mouseClick(&fixture.window, Qt::LeftButton, {}, inside);
    QCOMPARE(fixture.anchor(), 2);
    QCOMPARE(fixture.caret(), 2);
}

void EditorLooksTest::wordsAndLinesAreClicked()
{
    EditorFixture fixture;
    fixture.load(u"one two\nthree"_s);
    const QPointF point = fixture.inWindow(fixture.rectangleOf(5).center());
    const auto send = [&fixture, point](QEvent::Type type) {
        const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, point, point, point, Qt::LeftButton, buttons, Qt::NoModifier);
        event.setTimestamp(fixture.time += 50);
        QCoreApplication::sendEvent(&fixture.window, &event);
    };
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonPress,
          QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease})
        send(type);
    QCOMPARE(fixture.edit->property("selectedText"), u"two"_s);
    send(QEvent::MouseButtonPress);
    send(QEvent::MouseButtonRelease);
    QCOMPARE(fixture.edit->property("selectionStart"), 0);
    QVERIFY(fixture.edit->property("selectionEnd").toInt() >= 7);
}

void EditorLooksTest::selectedTextIsPastedByTheMiddleButton()
{
    EditorFixture fixture;
    fixture.load(u"one\u00a0two"_s);
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(fixture.primary.items().size(), 1);
    QCOMPARE(fixture.primary.items().constFirst().constFirst().data, u"one\u00a0two"_s.toUtf8());
    fixture.primary.setString(u"x\ny"_s);
    QTest::mouseClick(&fixture.window, Qt::MiddleButton, {},
                      fixture.inWindow(fixture.rectangleOf(3).center()));
    QTRY_COMPARE(fixture.text(), u"onex\ny\u00a0two"_s);
    QCOMPARE(fixture.caret(), 6);
    fixture.compose(u"ni"_s);
    QTest::mouseClick(&fixture.window, Qt::MiddleButton, {},
                      fixture.inWindow(fixture.rectangleOf(0).center()));
    QTRY_COMPARE(fixture.text(), u"x\nyonex\nyni\u00a0two"_s);
}

void EditorLooksTest::selectingTheSameTextAgainTakesPrimaryBack()
{
    EditorFixture fixture;
    fixture.load(u"one"_s);
    const auto primary = [&fixture] { return fixture.primary.items().constFirst().constFirst().data; };
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    QTRY_VERIFY(!fixture.primary.items().isEmpty() && primary() == "one");
    fixture.primary.setString(u"selected elsewhere"_s);
    // An existing selection is not published again.
    fixture.press(Qt::Key_Shift);
    QCoreApplication::processEvents();
    QCOMPARE(primary(), "selected elsewhere");
    fixture.press(Qt::Key_End);
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(primary(), "one");
}

/// The toolkit would wait for the program that the text is dragged from.
void EditorLooksTest::droppedTextIsNotAskedOfTheToolkit()
{
    EditorFixture fixture;
    fixture.load(u"one two"_s);
    fixture.dragged.setString(u"dropped "_s);
    QMimeData toolkits;
    toolkits.setText(u"the toolkit's"_s);
    const QPoint point = fixture.inWindow(fixture.rectangleOf(4).center());
    QDragEnterEvent enter(point, Qt::CopyAction, &toolkits, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(point, Qt::CopyAction, &toolkits, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(point, Qt::CopyAction, &toolkits, Qt::LeftButton, Qt::NoModifier);
    for (QEvent *event :
         {static_cast<QEvent *>(&enter), static_cast<QEvent *>(&move), static_cast<QEvent *>(&drop)})
        QCoreApplication::sendEvent(&fixture.window, event);
    QCOMPARE(fixture.text(), u"one dropped two"_s);
    QCOMPARE(fixture.edit->property("selectedText"), u"dropped "_s);
}

void EditorLooksTest::menuEdits()
{
    EditorFixture fixture;
    fixture.load(u"one two"_s);
    const QPoint point = fixture.inWindow(fixture.rectangleOf(1).center());
    const auto choose = [&fixture, point](const QString &entry) {
        QTest::mouseClick(&fixture.window, Qt::RightButton, {}, point);
        QVERIFY(fixture.editor->property("hasFocus").toBool());
        QTest::keyClick(&fixture.window, entry.front().toLatin1());
        QTest::keyClick(&fixture.window, Qt::Key_Return);
    };
    choose(u"Select All"_s);
    QCOMPARE(fixture.edit->property("selectedText"), u"one two"_s);
    QVERIFY(fixture.edit->hasActiveFocus());
    choose(u"Cut"_s);
    QCOMPARE(fixture.text(), QString());
    choose(u"Undo"_s);
    QCOMPARE(fixture.text(), u"one two"_s);
    choose(u"Redo"_s);
    choose(u"Paste"_s);
    QTRY_COMPARE(fixture.text(), u"one two"_s);
}

void EditorLooksTest::screenReaderFindsBoxes()
{
    EditorFixture fixture;
    fixture.load(u"☐ Buy milk\n☑ Call"_s);
    fixture.paint();
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(fixture.boxes().constFirst());
    QVERIFY(box && box->actionInterface());
    QCOMPARE(box->role(), QAccessible::CheckBox);
    QCOMPARE(box->text(QAccessible::Name), u"Buy milk"_s);
    QVERIFY(!box->state().checked);
    box->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(fixture.text(), u"☑ Buy milk\n☑ Call"_s);
    fixture.paint();
    QVERIFY(box->state().checked);
    // It stays the same object while the text before it changes.
    fixture.select(0, 0);
    fixture.type(u"x\n"_s);
    fixture.paint();
    QVERIFY(fixture.boxes().contains(qobject_cast<QQuickItem *>(box->object())));
}

QTEST_MAIN(EditorLooksTest)
#include "tst_editorlooks.moc"
