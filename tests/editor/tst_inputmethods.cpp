// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include "editor/notetextview.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What an input method composes, commits and replaces in the editor, and undoing it.
class InputMethodsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inputMethodOwnsTheKeysWhileComposing();
    void emojiKeyIsTypedWhileComposing();
    void committedTextObeysTheRules_data();
    void committedTextObeysTheRules();
    void eachCommitIsAStep();
    void commitOverSelectionIsOneStep();
    void surrogatePairIsNeverTornApart();
    void replacedTextIsOneStep_data();
    void replacedTextIsOneStep();
    void textThatArrivesWhileComposingIsInserted_data();
    void textThatArrivesWhileComposingIsInserted();

private:
    static void undo(EditorFixture &fixture) { fixture.press(Qt::Key_Z, Qt::ControlModifier); }
    static void redo(EditorFixture &fixture) { fixture.press(Qt::Key_Y, Qt::ControlModifier); }
};

void InputMethodsTest::inputMethodOwnsTheKeysWhileComposing()
{
    EditorFixture fixture(u"takesReturn: true; takesEscape: true"_s);
    QSignalSpy returns(fixture.editor, SIGNAL(returned()));
    QSignalSpy escapes(fixture.editor, SIGNAL(escaped()));
    fixture.load(u"# Plan\n• a"_s);
    fixture.select(6, 6);
    fixture.type(u"s"_s);
    fixture.compose(u"ni"_s);
    const QImage composing = fixture.picture();
    fixture.press(Qt::Key_Return, {}, u"\r"_s);
    fixture.press(Qt::Key_Escape);
    fixture.press(Qt::Key_Left);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    fixture.press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(fixture.text(), u"# Plans\n• a"_s);
    QCOMPARE(fixture.edit->property("preeditText"), u"ni"_s);
    QCOMPARE(returns.count() + escapes.count(), 0);

    // Composed text is as large as its heading, so little changes when it is committed.
    const qreal composed = fixture.rectangleOf(0).height();
    fixture.commit(u"你"_s);
    QCOMPARE(fixture.text(), u"# Plans你\n• a"_s);
    QVERIFY(composing != fixture.picture());
    fixture.press(Qt::Key_Backspace);
    QCOMPARE(fixture.rectangleOf(0).height(), composed);
    fixture.press(Qt::Key_Return, {}, u"\r"_s);
    QCOMPARE(returns.count(), 1);
}

void InputMethodsTest::committedTextObeysTheRules_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("commit");
    QTest::addColumn<QString>("after");

    QTest::newRow("space") << u"[ ]"_s << u" "_s << u"☐ "_s;
    QTest::newRow("just a space") << u"a"_s << u" "_s << u"a "_s;
    QTest::newRow("line break") << u"☑ a"_s << u"\n"_s << u"☑ a\n☐ "_s;
    QTest::newRow("several characters") << QString() << u"- "_s << u"- "_s;
    QTest::newRow("the same as beside it") << u"aa"_s << u"a"_s << u"aaa"_s;
}

void InputMethodsTest::committedTextObeysTheRules()
{
    QFETCH(QString, before);
    QFETCH(QString, commit);
    EditorFixture fixture;
    fixture.load(before);
    fixture.controller.moveCaretToEnd();
    fixture.compose(u"x"_s);
    fixture.commit(commit);
    QTEST(fixture.text(), "after");
    QCOMPARE(fixture.caret(), fixture.text().size());
    QCOMPARE(fixture.edit->property("preeditText").toString(), QString());
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), before);
}

void InputMethodsTest::emojiKeyIsTypedWhileComposing()
{
    EditorFixture fixture;
    fixture.compose(u"ni"_s);
    fixture.type(u"😀"_s);
    QCOMPARE(fixture.text(), u"ni😀"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"ni"_s);
}

void InputMethodsTest::eachCommitIsAStep()
{
    EditorFixture fixture;
    fixture.type(u"ab"_s);
    fixture.compose(u"ni"_s);
    fixture.commit(u"你好"_s);
    fixture.commit(u"世界"_s);
    fixture.type(u"cd"_s);
    const QStringList states{u"ab你好世界cd"_s, u"ab你好世界"_s, u"ab你好"_s, u"ab"_s, QString()};
    for (const QString &state : states) {
        QCOMPARE(fixture.text(), state);
        QCOMPARE(fixture.caret(), state.size());
        undo(fixture);
    }
    for (qsizetype i = states.size() - 2; i >= 0; --i) {
        redo(fixture);
        QCOMPARE(fixture.text(), states.at(i));
    }
}

void InputMethodsTest::commitOverSelectionIsOneStep()
{
    EditorFixture fixture;
    fixture.load(u"one two three"_s);
    fixture.select(7, 4);
    fixture.compose(u"n"_s);
    QCOMPARE(fixture.text(), u"one  three"_s);
    fixture.compose(u"ni"_s);
    fixture.commit(u"你"_s);
    fixture.commit(u"好"_s);
    QCOMPARE(fixture.text(), u"one 你好 three"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"one 你 three"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"one two three"_s);
    QCOMPARE(fixture.anchor(), 7);
    QCOMPARE(fixture.caret(), 4);
    redo(fixture);
    QCOMPARE(fixture.text(), u"one 你 three"_s);
    // Equal to the text after it, and to a marker's end.
    fixture.load(u"xaa"_s);
    fixture.select(0, 1);
    fixture.compose(u"x"_s);
    fixture.commit(u"a"_s);
    QCOMPARE(fixture.text(), u"aaa"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"xaa"_s);
    fixture.load(u"-x"_s);
    fixture.select(1, 2);
    fixture.compose(u"x"_s);
    fixture.commit(u" "_s);
    QCOMPARE(fixture.text(), u"• "_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"-x"_s);
    redo(fixture);
    QCOMPARE(fixture.text(), u"• "_s);
    // Equal to the selection: there is nothing to undo.
    fixture.load(u"ab"_s);
    fixture.select(1, 2);
    fixture.compose(u"x"_s);
    fixture.commit(u"b"_s);
    QVERIFY(!fixture.controller.textView()->canUndo());
    // What was previously erased with keys remains a separate step.
    fixture.load(u"ab"_s);
    fixture.controller.moveCaretToEnd();
    fixture.type(u"\b"_s);
    fixture.commit(u"你"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"a"_s);
}

void InputMethodsTest::surrogatePairIsNeverTornApart()
{
    EditorFixture fixture;
    // Both begin with the same half, and an input method's change is reported for the whole line.
    fixture.load(u"😀"_s);
    fixture.select(0, 0);
    fixture.commit(u"😁"_s);
    QCOMPARE(fixture.text(), u"😁😀"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"😀"_s);
    fixture.press(Qt::Key_End);
    fixture.type(u"\b"_s);
    QCOMPARE(fixture.text(), QString());
    undo(fixture);
    QCOMPARE(fixture.text(), u"😀"_s);
    fixture.replace(-2, 2, u"😂"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"😀"_s);

    // The halves arrive separately, with a word before them and a pause in between.
    fixture.load(u"a"_s);
    fixture.controller.moveCaretToEnd();
    fixture.type(u"b"_s);
    fixture.commit(QChar(0xd83d));
    fixture.time += 5000;
    fixture.commit(QChar(0xde00));
    QCOMPARE(fixture.text(), u"ab😀"_s);
    undo(fixture);
    QCOMPARE(fixture.text(), u"ab"_s);
    redo(fixture);
    QCOMPARE(fixture.text(), u"ab😀"_s);
}

void InputMethodsTest::replacedTextIsOneStep_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("commit");
    QTest::addColumn<QString>("after");
    QTest::newRow("word") << u"teh|"_s << -3 << 3 << u"the"_s << u"the"_s;
    QTest::newRow("removed") << u"abc|d"_s << -2 << 2 << QString() << u"ad"_s;
    QTest::newRow("after the caret") << u"a|bc"_s << 0 << 1 << u"x"_s << u"axc"_s;
    QTest::newRow("read from right to left") << u"☐ שלם|"_s << -1 << 1 << u"ום"_s << u"☐ שלום"_s;
    QTest::newRow("half an emoji before") << u"a😀|b"_s << -1 << 1 << QString() << u"ab"_s;
    QTest::newRow("half an emoji after") << u"a|😀b"_s << 0 << 1 << u"x"_s << u"axb"_s;
    QTest::newRow("from the middle to the middle") << u"😀a😁|b"_s << -4 << 3 << u"x"_s << u"xb"_s;
}

void InputMethodsTest::replacedTextIsOneStep()
{
    QFETCH(QString, before);
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QString, commit);
    EditorFixture fixture;
    const qsizetype caret = before.indexOf(u'|');
    const QString text = before.remove(u'|');
    fixture.load(text);
    fixture.select(caret, caret);
    fixture.replace(start, length, commit);
    QTEST(fixture.text(), "after");
    undo(fixture);
    QCOMPARE(fixture.text(), text);
    QCOMPARE(fixture.caret(), caret);
    redo(fixture);
    QTEST(fixture.text(), "after");
}

void InputMethodsTest::textThatArrivesWhileComposingIsInserted_data()
{
    QTest::addColumn<int>("dropPosition");
    QTest::addColumn<QString>("after");
    QTest::newRow("pasted") << -1 << u"one niX two"_s;
    QTest::newRow("dropped before it") << 0 << u"Xone ni two"_s;
    QTest::newRow("dropped after it") << 8 << u"one ni twoX"_s;
}

void InputMethodsTest::textThatArrivesWhileComposingIsInserted()
{
    QFETCH(const int, dropPosition);
    for (const bool isLate : {false, true}) {
        MemoryClock clock;
        EditorFixture fixture;
        fixture.load(u"one  two"_s);
        fixture.select(4, 4);
        fixture.compose(u"ni"_s);
        MemoryPasteboard &source = dropPosition < 0 ? fixture.pasteboard : fixture.dragged;
        source.setString(u"X"_s);
        if (isLate)
            source.setDelay(clock, std::chrono::seconds(1));
        NoteTextView &view = *fixture.controller.textView();
        view.setDropPosition(dropPosition);
        if (dropPosition < 0)
            view.paste();
        else
            view.drop();
        clock.advance(std::chrono::seconds(1));
        QTRY_VERIFY(fixture.text().contains(u'X'));
        QTEST(fixture.text(), "after");
    }
}

QTEST_MAIN(InputMethodsTest)
#include "tst_inputmethods.moc"
