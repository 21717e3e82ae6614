// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include "editor/notetextview.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The editor's keys, undo steps and texts, using real keys in a real window.
class NoteEditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedText_data();
    void typedText();
    void listKeyTogglesTheLine_data();
    void listKeyTogglesTheLine();
    void hostTakesKeys_data();
    void hostTakesKeys();
    void heldKeyActsOnce_data();
    void heldKeyActsOnce();
    void heldReturnRepeatsLineBreaks();
    void undoSteps_data();
    void undoSteps();
    void undoRestoresTheSelection();
    void undoRestoresErasedTextExactly_data();
    void undoRestoresErasedTextExactly();
    void textSetByTheHostIsNotUndone();
    void displayingChangesNoCharacter();
    void lineWithAPictureCharacterIsPainted();
    void foreignLineBreakIsOneCharacter();
    void pasteIsPlainText();
    void pasteWhileComposing();
    void latePasteComesBeforeWhatIsTypedAfterIt();
    void latePasteComesWhereItWasAskedFor();
    void nothingOfOthersIsPastedWithoutAPasteboard();
};

void NoteEditorTest::typedText_data()
{
    // "|" marks the caret.
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("after");

    QTest::newRow("words") << u"|"_s << u"a word"_s << u"a word|"_s;
    QTest::newRow("unticked") << u"|"_s << u"[ ] Buy"_s << u"☐ Buy|"_s;
    QTest::newRow("unticked, short") << u"|"_s << u"[] "_s << u"☐ |"_s;
    QTest::newRow("ticked") << u"Title\n|"_s << u"[x] "_s << u"Title\n☑ |"_s;
    QTest::newRow("capital X") << u"|"_s << u"[X] "_s << u"[X] |"_s;
    QTest::newRow("bullets") << u"|"_s << u"- a\n\n* b"_s << u"• a\n• b|"_s;
    QTest::newRow("indented") << u"|"_s << u" - a"_s << u" - a|"_s;
    QTest::newRow("not at the start") << u"a|"_s << u"- b"_s << u"a- b|"_s;
    QTest::newRow("before other text") << u"-|b"_s << u" "_s << u"• |b"_s;
    QTest::newRow("after a line break of another kind") << u"a\u2028-|"_s << u" "_s << u"a\u2028• |"_s;
    QTest::newRow("next item") << u"• Milk|"_s << u"\n"_s << u"• Milk\n• |"_s;
    QTest::newRow("next item is not done") << u"☑ Done|"_s << u"\n"_s << u"☑ Done\n☐ |"_s;
    QTest::newRow("split item") << u"☐ Mi|lk"_s << u"\n"_s << u"☐ Mi\n☐ |lk"_s;
    QTest::newRow("empty item") << u"☐ a\n☐ |\nb"_s << u"\n"_s << u"☐ a\n|\nb"_s;
    QTest::newRow("empty item, caret before it") << u"|☐ "_s << u"\n"_s << u"|"_s;
    QTest::newRow("heading goes on as text") << u"# Plan|"_s << u"\nx"_s << u"# Plan\nx|"_s;
}

void NoteEditorTest::typedText()
{
    QFETCH(QString, before);
    QFETCH(QString, keys);
    EditorFixture fixture;
    const qsizetype caret = before.indexOf(u'|');
    fixture.load(before.remove(u'|'));
    fixture.select(caret, caret);
    fixture.type(keys);
    QString after = fixture.text();
    QTEST(after.insert(fixture.caret(), u'|'), "after");
}

void NoteEditorTest::listKeyTogglesTheLine_data()
{
    // "<" marks the start of the selection, "|" the caret.
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("text") << u"a\nmi<|lk"_s << u"a\n☐ mi<|lk"_s;
    QTest::newRow("unticked item") << u"☐ <milk|"_s << u"<milk|"_s;
    QTest::newRow("ticked item") << u"☑ milk<|"_s << u"milk<|"_s;
    QTest::newRow("bullet") << u"• milk<|"_s << u"☐ milk<|"_s;
    QTest::newRow("heading, caret in its marker") << u"#<| Plan"_s << u"☐ <|Plan"_s;
    QTest::newRow("several lines: the first") << u"a\nm<i\nte|a"_s << u"a\n☐ m<i\nte|a"_s;
    QTest::newRow("after a line break of another kind") << u"☐ a\u2028b<|"_s << u"☐ a\u2028☐ b<|"_s;
}

void NoteEditorTest::listKeyTogglesTheLine()
{
    QFETCH(QString, before);
    EditorFixture fixture;
    const qsizetype anchor = before.indexOf(u'<');
    const qsizetype caret = before.indexOf(u'|') - 1;
    fixture.load(before.remove(u'<').remove(u'|'));
    fixture.select(anchor, caret);
    fixture.press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QString after = fixture.text();
    QTEST(after.insert(fixture.caret(), u'|').insert(fixture.anchor(), u'<'), "after");
}

void NoteEditorTest::hostTakesKeys_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QString>("after");

    const int shift = Qt::ShiftModifier;
    const int control = Qt::ControlModifier;
    const int ret = Qt::Key_Return;
    QTest::newRow("Return") << u"takesReturn"_s << u"• a"_s << ret << 0 << "returned()"_qba << u"• a"_s;
    QTest::newRow("Shift-Return") << u"takesReturn"_s << u"• a"_s << ret << shift << QByteArray()
                                  << u"• a\n• "_s;
    QTest::newRow("Control-Return") << u"takesCommandReturn"_s << u"a"_s << ret << control
                                    << "commandReturned()"_qba << u"a"_s;
    QTest::newRow("Control-Return for nobody")
        << u"takesReturn"_s << u"a"_s << ret << control << QByteArray() << u"a"_s;
    QTest::newRow("Control-Shift-Return")
        << u"takesCommandReturn"_s << u"a"_s << ret << (control | shift) << QByteArray() << u"a"_s;
    QTest::newRow("number pad") << u"takesReturn"_s << u"a"_s << int{Qt::Key_Enter} << int{Qt::KeypadModifier}
                                << "returned()"_qba << u"a"_s;
    QTest::newRow("Escape") << u"takesEscape"_s << u"a"_s << int{Qt::Key_Escape} << 0 << "escaped()"_qba
                            << u"a"_s;
    QTest::newRow("empty item") << u"takesEmptyItemReturn"_s << u"☐ "_s << ret << 0
                                << "emptyItemReturned()"_qba << u"☐ "_s;
    QTest::newRow("item that is not empty")
        << u"takesEmptyItemReturn"_s << u"☐ a"_s << ret << 0 << QByteArray() << u"☐ a\n☐ "_s;
}

void NoteEditorTest::hostTakesKeys()
{
    QFETCH(QString, property);
    QFETCH(QString, before);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QByteArray, signal);
    EditorFixture fixture(property + u": true"_s);
    fixture.load(before);
    fixture.controller.moveCaretToEnd();
    const QByteArrayList names{"returned()"_qba, "commandReturned()"_qba, "emptyItemReturned()"_qba,
                               "escaped()"_qba};
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const QByteArray &name : names)
        spies.push_back(std::make_unique<QSignalSpy>(fixture.editor, ('2' + name).constData()));
    fixture.press(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers), u"\r"_s);
    for (qsizetype i = 0; i < names.size(); ++i)
        QCOMPARE(spies.at(static_cast<size_t>(i))->count(), names.at(i) == signal ? 1 : 0);
    QTEST(fixture.text(), "after");
}

void NoteEditorTest::heldKeyActsOnce_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("laterModifiers");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QString>("after");

    const int shift = Qt::ShiftModifier;
    const int control = Qt::ControlModifier;
    const int ret = Qt::Key_Return;
    QTest::newRow("Return that saves")
        << u"takesReturn"_s << u"a"_s << ret << 0 << 0 << "returned()"_qba << u"a"_s;
    QTest::newRow("Control-Return") << u"takesCommandReturn"_s << u"a"_s << ret << control << control
                                    << "commandReturned()"_qba << u"a"_s;
    QTest::newRow("Control-Return, Control released")
        << u"takesCommandReturn"_s << u"a"_s << ret << control << 0 << "commandReturned()"_qba << u"a"_s;
    QTest::newRow("Escape") << u"takesEscape"_s << u"a"_s << int{Qt::Key_Escape} << 0 << 0 << "escaped()"_qba
                            << u"a"_s;
    QTest::newRow("empty item") << u"takesEmptyItemReturn"_s << u"☐ "_s << ret << 0 << 0
                                << "emptyItemReturned()"_qba << u"☐ "_s;
    QTest::newRow("item that the first line break empties")
        << u"takesEmptyItemReturn"_s << u"☐ a"_s << ret << 0 << 0 << QByteArray() << u"☐ a\n☐ "_s;
    QTest::newRow("Shift-Return, Shift released")
        << u"takesReturn"_s << u"a"_s << ret << shift << 0 << QByteArray() << u"a\n"_s;
    QTest::newRow("checklist") << u"takesEscape"_s << u"a"_s << int{Qt::Key_L} << (control | shift)
                               << (control | shift) << QByteArray() << u"☐ a"_s;
}

void NoteEditorTest::heldKeyActsOnce()
{
    QFETCH(QString, property);
    QFETCH(QString, before);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, laterModifiers);
    QFETCH(QByteArray, signal);
    EditorFixture fixture(property + u": true"_s);
    fixture.load(before);
    fixture.controller.moveCaretToEnd();
    const QByteArray spied = signal.isEmpty() ? "returned()"_qba : signal;
    QSignalSpy spy(fixture.editor, ('2' + spied).constData());
    QSignalSpy emptyItems(fixture.editor, SIGNAL(emptyItemReturned()));
    const QString text = key == Qt::Key_Return ? u"\r"_s : QString();
    fixture.press(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers), text);
    fixture.hold(static_cast<Qt::Key>(key), Qt::KeyboardModifiers(laterModifiers), text);
    QCOMPARE(spy.count(), signal.isEmpty() ? 0 : 1);
    QCOMPARE(emptyItems.count(), signal == "emptyItemReturned()"_qba ? 1 : 0);
    QTEST(fixture.text(), "after");
}

void NoteEditorTest::heldReturnRepeatsLineBreaks()
{
    EditorFixture fixture(u"takesReturn: true"_s);
    fixture.load(u"• a"_s);
    fixture.controller.moveCaretToEnd();
    // Held since before the text had the focus.
    fixture.hold(Qt::Key_Return, Qt::ShiftModifier, u"\r"_s);
    QCOMPARE(fixture.text(), u"• a"_s);
    fixture.press(Qt::Key_Return, Qt::ShiftModifier, u"\r"_s);
    fixture.hold(Qt::Key_Return, Qt::ShiftModifier, u"\r"_s);
    // The second one ends the list.
    QCOMPARE(fixture.text(), u"• a\n\n\n"_s);
    fixture.edit->setFocus(false);
    fixture.edit->forceActiveFocus();
    fixture.hold(Qt::Key_Return, Qt::ShiftModifier, u"\r"_s);
    QCOMPARE(fixture.text(), u"• a\n\n\n"_s);
}

void NoteEditorTest::undoSteps_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("texts");

    // There is a long pause between two strings of keys.
    QTest::newRow("words") << QStringList{u"one two"_s} << QStringList{u"one "_s, QString()};
    QTest::newRow("pause") << QStringList{u"on"_s, u"e"_s} << QStringList{u"on"_s, QString()};
    QTest::newRow("erased at once") << QStringList{u"abc\b\b"_s} << QStringList{u"abc"_s, QString()};
    QTest::newRow("emoji in a word") << QStringList{u"a😀b c"_s} << QStringList{u"a😀b "_s, QString()};
    QTest::newRow("joiner in a word") << QStringList{u"می\u200cخ"_s} << QStringList{QString()};
    QTest::newRow("emoji erased one by one")
        << QStringList{u"😀👍🏽"_s, u"\b"_s, u"\b"_s} << QStringList{u"😀"_s, u"😀👍🏽"_s, QString()};
    QTest::newRow("trigger") << QStringList{u"[ ] a"_s} << QStringList{u"☐ "_s, u"[ ]"_s, u"[ "_s, QString()};
    QTest::newRow("next item") << QStringList{u"- a\nb"_s}
                               << QStringList{u"• a\n• "_s, u"• a"_s, u"• "_s, u"-"_s, QString()};
}

void NoteEditorTest::undoSteps()
{
    QFETCH(QStringList, keys);
    QFETCH(QStringList, texts);
    EditorFixture fixture;
    for (const QString &typed : keys) {
        fixture.type(typed);
        fixture.time += 5000;
    }
    QStringList states{fixture.text()};
    for (const QString &text : texts) {
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(fixture.text(), text);
        states.prepend(text);
    }
    for (const QString &text : states.sliced(1)) {
        fixture.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(fixture.text(), text);
    }
}

void NoteEditorTest::undoRestoresTheSelection()
{
    EditorFixture fixture;
    fixture.load(u"☐ one\ntwo three"_s);
    fixture.select(9, 6);
    fixture.type(u"x"_s);
    fixture.select(0, 0);
    fixture.controller.textView()->toggleBox(0);
    fixture.select(4, 4);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"☐ one\nx three"_s);
    QCOMPARE(fixture.caret(), 0);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"☐ one\ntwo three"_s);
    QCOMPARE(fixture.anchor(), 9);
    QCOMPARE(fixture.caret(), 6);
}

void NoteEditorTest::undoRestoresErasedTextExactly_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("after");
    QTest::newRow("Backspace: emoji") << u"☐ 👨‍👩‍👧|x"_s << u"\b"_s << u"☐ |x"_s;
    QTest::newRow("Backspace: accent") << u"e\u0301|x"_s << u"\b"_s << u"e|x"_s;
    QTest::newRow("Backspace: foreign line break") << u"a\r\n|b"_s << u"\b"_s << u"a|b"_s;
    QTest::newRow("Delete: emoji") << u"☐ |👨‍👩‍👧x"_s << u"\x7f"_s << u"☐ |x"_s;
    QTest::newRow("Delete: accent") << u"|e\u0301x"_s << u"\x7f"_s << u"|x"_s;
    QTest::newRow("Delete: line break before a line read from right to left")
        << u"ab|\n☐ חלב"_s << u"\x7f"_s << u"ab|☐ חלב"_s;
}

void NoteEditorTest::undoRestoresErasedTextExactly()
{
    QFETCH(QString, before);
    QFETCH(QString, key);
    EditorFixture fixture;
    const qsizetype caret = before.indexOf(u'|');
    const QString text = before.remove(u'|');
    fixture.load(text);
    fixture.select(caret, caret);
    fixture.type(key);
    QString after = fixture.text();
    QTEST(after.insert(fixture.caret(), u'|'), "after");
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), text);
    QCOMPARE(fixture.caret(), caret);
    QCOMPARE(fixture.anchor(), caret);
    fixture.press(Qt::Key_Y, Qt::ControlModifier);
    after = fixture.text();
    QTEST(after.insert(fixture.caret(), u'|'), "after");
}

void NoteEditorTest::textSetByTheHostIsNotUndone()
{
    EditorFixture fixture;
    QSignalSpy edits(fixture.editor, SIGNAL(edited(QString)));
    fixture.type(u"abc"_s);
    QCOMPARE(edits.count(), 3);
    fixture.select(1, 2);
    fixture.load(u"abc"_s);
    QCOMPARE(fixture.caret(), 2);
    QCOMPARE(fixture.anchor(), 1);
    fixture.load(u"x"_s);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"x"_s);
    QCOMPARE(edits.count(), 3);
}

void NoteEditorTest::displayingChangesNoCharacter()
{
    QString text = u"a\u00a0b \t \n\r\nx\u2028y\u2029z\u0085\ufffc\ufdd0\ufdd1\ufeff\u200b\u200d"
                   "e\u0301 👩\u200d💻 \u202eabc\u202c \u000b\u000c\r\r\n  "_s;
    text += QChar(0);
    text += QChar(0xd800);
    EditorFixture fixture;
    fixture.load(text);
    QCOMPARE(fixture.text(), text);
    fixture.select(1, 1);
    fixture.type(u"b\b"_s);
    fixture.press(Qt::Key_End, Qt::ControlModifier);
    fixture.type(u"- x"_s);
    fixture.compose(u"ni"_s);
    fixture.commit(u"n"_s);
    QCOMPARE(fixture.text(), text + u"- xn"_s);
    while (fixture.text().size() > text.size())
        fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), text);

    fixture.press(Qt::Key_A, Qt::ControlModifier);
    fixture.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(fixture.text(), QString());
    QCOMPARE(fixture.pasteboard.items().constFirst().constFirst().data, text.toUtf8());
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), text);
}

void NoteEditorTest::lineWithAPictureCharacterIsPainted()
{
    EditorFixture fixture;
    fixture.edit->setFocus(false);
    fixture.load(u"Word"_s);
    const QImage plain = fixture.picture();
    fixture.load(u"Word\ufffc\r"_s);
    QCOMPARE(fixture.picture(), plain);
}

void NoteEditorTest::foreignLineBreakIsOneCharacter()
{
    EditorFixture fixture;
    fixture.load(u"☐ a\r\n☐ \r\nb"_s);
    fixture.press(Qt::Key_End);
    QCOMPARE(fixture.caret(), 3);
    fixture.press(Qt::Key_Right);
    QCOMPARE(fixture.caret(), 5);
    fixture.press(Qt::Key_Left);
    QCOMPARE(fixture.caret(), 3);
    fixture.press(Qt::Key_End);
    fixture.type(u"x\x7f"_s);
    QCOMPARE(fixture.text(), u"☐ ax☐ \r\nb"_s);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    fixture.select(8, 8);
    fixture.type(u"\n"_s);
    QCOMPARE(fixture.text(), u"☐ ax\r\n\r\nb"_s);
    fixture.type(u"\b"_s);
    QCOMPARE(fixture.text(), u"☐ ax\r\nb"_s);
}

void NoteEditorTest::pasteIsPlainText()
{
    EditorFixture fixture;
    fixture.load(u"ab"_s);
    fixture.select(0, 1);
    fixture.pasteboard.setString(u"- one\r\n[ ] two\n"_s);
    fixture.press(Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(fixture.text(), u"- one\r\n[ ] two\nb"_s);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"ab"_s);
    fixture.pasteboard.setSecret(true);
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"ab"_s);
}

void NoteEditorTest::pasteWhileComposing()
{
    EditorFixture fixture;
    fixture.pasteboard.setString(u"X"_s);
    fixture.compose(u"ni"_s);
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    fixture.compose(u"hao"_s);
    fixture.press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(fixture.text(), u"niXhaoX"_s);
}

void NoteEditorTest::latePasteComesBeforeWhatIsTypedAfterIt()
{
    MemoryClock clock;
    EditorFixture fixture;
    fixture.pasteboard.setString(u"late"_s);
    fixture.pasteboard.setDelay(clock, std::chrono::seconds(1));
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    fixture.type(u"ab\n"_s);
    clock.advance(std::chrono::seconds(1));
    QTRY_COMPARE(fixture.text(), u"lateab\n"_s);
    fixture.press(Qt::Key_Z, Qt::ControlModifier);
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    // The editor may be gone by then.
    delete fixture.editor;
    clock.advance(std::chrono::seconds(1));
    QCoreApplication::processEvents();
    QVERIFY(!fixture.controller.textView());
    fixture.controller.toggleLinePrefix(u"☐ "_s);
}

void NoteEditorTest::latePasteComesWhereItWasAskedFor()
{
    MemoryClock clock;
    EditorFixture fixture;
    fixture.load(u"one two"_s);
    fixture.select(4, 7);
    fixture.pasteboard.setString(u"late"_s);
    fixture.pasteboard.setDelay(clock, std::chrono::seconds(1));
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    // With the mouse.
    fixture.select(0, 3);
    clock.advance(std::chrono::seconds(1));
    QTRY_COMPARE(fixture.text(), u"one late"_s);
    QCOMPARE(fixture.anchor(), 0);
    QCOMPARE(fixture.caret(), 3);
}

void NoteEditorTest::nothingOfOthersIsPastedWithoutAPasteboard()
{
    EditorFixture fixture;
    delete fixture.engine.findChild<LentPasteboards *>();
    fixture.load(u"ab"_s);
    fixture.press(Qt::Key_A, Qt::ControlModifier);
    fixture.press(Qt::Key_X, Qt::ControlModifier);
    fixture.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(fixture.text(), u"ab"_s);
}

QTEST_MAIN(NoteEditorTest)
#include "tst_noteeditor.moc"
