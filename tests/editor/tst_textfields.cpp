// SPDX-License-Identifier: MIT
#include "../components/memorydesktop.h"
#include "editor/fieldtransfer.h"
#include "editor/lentpasteboards.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// A window with two text fields like those in the views; the first has the focus. The toolkit's own
/// clipboard contains something else, which must not appear anywhere.
struct Window : MemoryDesktop
{
    explicit Window(const QString &type)
    {
        lendToEditors(engine, pasteboard, &primary);
        QQmlComponent component(&engine);
        component.setData(
            u"import QtQuick\nItem { width: 300; height: 100\n"
            "%1 { objectName: \"first\"; width: 300; height: 40; selectByMouse: true; focus: true }\n"
            "%1 { objectName: \"second\"; y: 50; width: 300; height: 40; selectByMouse: true } }"_s.arg(type)
                .toUtf8(),
            QUrl());
        root.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!root)
            qFatal("%s", qUtf8Printable(component.errorString()));
        window.resize(300, 100);
        root->setParentItem(window.contentItem());
        first = root->findChild<QQuickItem *>(u"first"_s);
        second = root->findChild<QQuickItem *>(u"second"_s);
        window.show();
        window.requestActivate();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("The window does not become active.");
        first->forceActiveFocus();
        QGuiApplication::clipboard()->setText(kToolkits);
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&window, static_cast<Qt::Key>(key), modifiers);
    }
    void type(const QString &text)
    {
        for (const QChar letter : text)
            QTest::keyClick(&window, letter.toLatin1());
    }
    void pasteLater(const QString &text)
    {
        pasteboard.setString(text);
        pasteboard.setDelay(clock, 500ms);
        press(Qt::Key_V, Qt::ControlModifier);
    }
    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { press(Qt::Key_Y, Qt::ControlModifier); }
    void compose(const QString &text) const
    {
        QInputMethodEvent event(text, {});
        QCoreApplication::sendEvent(first, &event);
    }
    /// Commits a text that replaces another, whose start is relative to the caret.
    void commit(const QString &text, int start = 0, int length = 0) const
    {
        QInputMethodEvent event;
        event.setCommitString(text, start, length);
        QCoreApplication::sendEvent(first, &event);
    }
    /// The text of the first field.
    [[nodiscard]] QString text() const { return textOf(first); }
    [[nodiscard]] int caret() const { return first->property("cursorPosition").toInt(); }
    static void select(QQuickItem &item, int start, int end)
    {
        QMetaObject::invokeMethod(&item, "select", Q_ARG(int, start), Q_ARG(int, end));
    }
    [[nodiscard]] static QString textOf(const QQuickItem *item) { return item->property("text").toString(); }
    [[nodiscard]] static QString stringOn(const MemoryPasteboard &pasteboard)
    {
        return pasteboard.items().isEmpty()
                   ? QString()
                   : QString::fromUtf8(pasteboard.items().constFirst().constFirst().data);
    }

    inline static const QString kToolkits = u"the toolkit's"_s;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> root;
    QQuickItem *first = nullptr;
    QQuickItem *second = nullptr;
};

} // namespace

/// Copying and pasting in text fields with Vesk's own pasteboards, in the order of the keys.
class TextFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pastesWithoutTheToolkitsClipboard_data();
    void pastesWithoutTheToolkitsClipboard();
    void copiesWithoutTheToolkitsClipboard_data() { types(); }
    void copiesWithoutTheToolkitsClipboard();
    void pastesWhileComposing_data() { types(); }
    void pastesWhileComposing();
    void middleButtonPastesWhereItClicks_data() { types(); }
    void middleButtonPastesWhereItClicks();
    void typedTextFollowsALatePaste_data() { types(); }
    void typedTextFollowsALatePaste();
    void pasteThatFailsIsNotTriedAgain();
    void latePasteStaysInItsField_data() { types(); }
    void latePasteStaysInItsField();
    void latePasteIntoAFieldThatHasGone();
    void selectingTheSameTextAgainTakesPrimaryBack_data() { types(); }
    void selectingTheSameTextAgainTakesPrimaryBack();
    void lineBreaksInASingleLine_data();
    void lineBreaksInASingleLine();
    void erasesWholeCharacters_data();
    void erasesWholeCharacters();
    void eachCommitIsAStep_data() { types(); }
    void eachCommitIsAStep();
    void undoNeverLeavesHalfACharacter_data() { types(); }
    void undoNeverLeavesHalfACharacter();
    void undoOfPasteAndCut_data() { types(); }
    void undoOfPasteAndCut();
    void textOfTheProgramIsNotUndone_data() { types(); }
    void textOfTheProgramIsNotUndone();
    void inputMethodGetsTheKeysWhileComposing_data() { types(); }
    void inputMethodGetsTheKeysWhileComposing();
    void eachParagraphHasItsDirection();

private:
    static void types()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("single line") << u"TextInput"_s;
        QTest::newRow("several lines") << u"TextEdit"_s;
    }
};

void TextFieldsTest::pastesWithoutTheToolkitsClipboard_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (const QString &type : {u"TextInput"_s, u"TextEdit"_s}) {
        const QByteArray name = type.toLatin1();
        QTest::addRow("%s, Control-V", name.constData())
            << type << int{Qt::Key_V} << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::addRow("%s, Shift-Insert", name.constData())
            << type << int{Qt::Key_Insert} << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::addRow("%s, Control-Shift-V", name.constData())
            << type << int{Qt::Key_V} << (Qt::ControlModifier | Qt::ShiftModifier);
        QTest::addRow("%s, a menu", name.constData()) << type << 0 << Qt::KeyboardModifiers();
    }
}

void TextFieldsTest::pastesWithoutTheToolkitsClipboard()
{
    QFETCH(const QString, type);
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    Window window(type);
    window.type(u"abcd"_s);
    Window::select(*window.first, 1, 3);
    window.pasteboard.setString(u"X\ufeffY"_s);
    if (key == 0)
        FieldTransfer::of(*window.first).paste();
    else
        window.press(key, modifiers);
    QCOMPARE(Window::textOf(window.first), u"aX\ufeffYd"_s);
    QCOMPARE(window.first->property("cursorPosition"), 4);
    // If the owner does not provide it, nothing changes.
    window.pasteboard.setSecret(true);
    Window::select(*window.first, 0, 1);
    window.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(Window::textOf(window.first), u"aX\ufeffYd"_s);
    window.first->setProperty("readOnly", true);
    window.pasteboard.setSecret(false);
    window.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(Window::textOf(window.first), u"aX\ufeffYd"_s);
}

void TextFieldsTest::copiesWithoutTheToolkitsClipboard()
{
    QFETCH(const QString, type);
    Window window(type);
    window.first->setProperty("text", u"one\u00a0two"_s);
    window.press(Qt::Key_A, Qt::ControlModifier);
    window.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Window::stringOn(window.pasteboard), u"one\u00a0two"_s);
    Window::select(*window.first, 0, 3);
    window.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(Window::stringOn(window.pasteboard), u"one"_s);
    QCOMPARE(Window::textOf(window.first).size(), 4);
    // Now nothing is selected.
    window.press(Qt::Key_Insert, Qt::ControlModifier);
    QCOMPARE(Window::stringOn(window.pasteboard), u"one"_s);
    window.first->setProperty("readOnly", true);
    window.press(Qt::Key_A, Qt::ControlModifier);
    window.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(Window::stringOn(window.pasteboard), u"\u00a0two"_s);
    QCOMPARE(Window::textOf(window.first).size(), 4);
    QCOMPARE(QGuiApplication::clipboard()->text(), Window::kToolkits);
}

void TextFieldsTest::pastesWhileComposing()
{
    QFETCH(const QString, type);
    Window window(type);
    QInputMethodEvent compose(u"ni"_s, {});
    QCoreApplication::sendEvent(window.first, &compose);
    QVERIFY(window.first->property("inputMethodComposing").toBool());
    window.pasteLater(u"X"_s);
    // Continues composing before the text arrives.
    QInputMethodEvent commit;
    commit.setCommitString(u"hao"_s);
    QCoreApplication::sendEvent(window.first, &commit);
    window.clock.advance(500ms);
    QCOMPARE(Window::textOf(window.first), u"niXhao"_s);
}

void TextFieldsTest::middleButtonPastesWhereItClicks()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"abcd"_s);
    window.second->forceActiveFocus();
    window.primary.setString(u"X"_s);
    QRectF place;
    QMetaObject::invokeMethod(window.first, "positionToRectangle", Q_RETURN_ARG(QRectF, place),
                              Q_ARG(int, 2));
    for (const QEvent::Type event : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                     QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent mouse(event, place.center(), place.center(), Qt::MiddleButton, Qt::MiddleButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(window.first, &mouse);
    }
    QCOMPARE(Window::textOf(window.first), u"abXXcd"_s);
    QVERIFY(window.first->hasActiveFocus());
}

void TextFieldsTest::typedTextFollowsALatePaste()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"ab"_s);
    window.press(Qt::Key_Left);
    window.pasteLater(u"one"_s);
    window.type(u"cd"_s);
    window.press(Qt::Key_Backspace);
    window.press(Qt::Key_V, Qt::ControlModifier);
    window.type(u"e"_s);
    QCOMPARE(Window::textOf(window.first), u"ab"_s);
    window.clock.advance(500ms);
    QCOMPARE(Window::textOf(window.first), u"aonecb"_s);
    window.clock.advance(500ms);
    QCOMPARE(Window::textOf(window.first), u"aoneconeeb"_s);
}

/// Otherwise the user would wait again for a hanging program with each press.
void TextFieldsTest::pasteThatFailsIsNotTriedAgain()
{
    Window window(u"TextEdit"_s);
    window.pasteboard.setSecret(true);
    window.pasteLater(u"X"_s);
    window.press(Qt::Key_V, Qt::ControlModifier);
    window.type(u"a"_s);
    window.clock.advance(500ms);
    QCOMPARE(Window::textOf(window.first), u"a"_s);
}

void TextFieldsTest::latePasteStaysInItsField()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"abcd"_s);
    Window::select(*window.first, 2, 2);
    window.pasteLater(u"X"_s);
    window.type(u"y"_s);
    // For example, with the mouse.
    window.second->forceActiveFocus();
    window.type(u"z"_s);
    // Meanwhile something else changes the first field.
    window.first->setProperty("text", u"__abcd"_s);
    window.clock.advance(500ms);
    QCOMPARE(Window::textOf(window.second), u"z"_s);
    QVERIFY(window.second->hasActiveFocus());
    QCOMPARE(Window::textOf(window.first), u"__abXycd"_s);
}

void TextFieldsTest::latePasteIntoAFieldThatHasGone()
{
    Window window(u"TextEdit"_s);
    window.pasteLater(u"X"_s);
    window.type(u"y"_s);
    delete window.first;
    window.second->forceActiveFocus();
    window.clock.advance(500ms);
    QCOMPARE(Window::textOf(window.second), QString());
    window.type(u"z"_s);
    QCOMPARE(Window::textOf(window.second), u"z"_s);
}

void TextFieldsTest::selectingTheSameTextAgainTakesPrimaryBack()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"one"_s);
    window.press(Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(Window::stringOn(window.primary), u"one"_s);
    window.primary.setString(u"selected elsewhere"_s);
    window.press(Qt::Key_Shift);
    QCoreApplication::processEvents();
    QCOMPARE(Window::stringOn(window.primary), u"selected elsewhere"_s);
    window.press(Qt::Key_End);
    window.press(Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(Window::stringOn(window.primary), u"one"_s);
}

void TextFieldsTest::lineBreaksInASingleLine_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("expected");
    QTest::newRow("between words") << u"one\n  two\r\nthree"_s << u"one two three"_s;
    QTest::newRow("at the ends") << u"\none\r\n"_s << u"one"_s;
    QTest::newRow("of a paragraph") << u"one\u2029two\u2028three"_s << u"one two three"_s;
}

void TextFieldsTest::lineBreaksInASingleLine()
{
    QFETCH(const QString, pasted);
    QFETCH(const QString, expected);
    Window window(u"TextInput"_s);
    window.pasteboard.setString(pasted);
    window.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(Window::textOf(window.first), expected);
}

// "|" marks the caret.
void TextFieldsTest::erasesWholeCharacters_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("after");
    for (const QString &type : {u"TextInput"_s, u"TextEdit"_s}) {
        const auto row = [&type](const char *name) -> QTestData & {
            return QTest::addRow("%s, %s", qUtf8Printable(type), name) << type;
        };
        row("family") << u"a👨‍👩‍👧‍👦|b"_s << int{Qt::Key_Backspace} << u"a|b"_s;
        row("accent") << u"e\u0301|x"_s << int{Qt::Key_Backspace} << u"e|x"_s;
        row("family, forwards") << u"a|👨‍👩‍👧‍👦b"_s << int{Qt::Key_Delete} << u"a|b"_s;
        row("letter with an accent, forwards") << u"|e\u0301x"_s << int{Qt::Key_Delete} << u"|x"_s;
    }
}

void TextFieldsTest::erasesWholeCharacters()
{
    QFETCH(const QString, type);
    QFETCH(QString, before);
    QFETCH(const int, key);
    Window window(type);
    const int caret = static_cast<int>(before.indexOf(u'|'));
    before.remove(u'|');
    window.first->setProperty("text", before);
    Window::select(*window.first, caret, caret);
    window.press(key);
    QTEST(window.text().insert(window.caret(), u'|'), "after");
    window.undo();
    QCOMPARE(window.text(), before);
    QCOMPARE(window.caret(), caret);
}

void TextFieldsTest::eachCommitIsAStep()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"ab"_s);
    window.compose(u"ni"_s);
    window.commit(u"你好"_s);
    window.commit(u"世界"_s);
    window.type(u"cd"_s);
    // Replaces the selection.
    Window::select(*window.first, 0, 2);
    window.compose(u"x"_s);
    window.commit(u"我"_s);
    const QStringList states{u"我你好世界cd"_s, u"ab你好世界cd"_s, u"ab你好世界"_s,
                             u"ab你好"_s,       u"ab"_s,           QString()};
    for (const QString &state : states) {
        QCOMPARE(window.text(), state);
        window.undo();
    }
    for (qsizetype i = states.size() - 2; i >= 0; --i) {
        window.redo();
        QCOMPARE(window.text(), states.at(i));
    }
}

void TextFieldsTest::undoNeverLeavesHalfACharacter()
{
    QFETCH(const QString, type);
    Window window(type);
    const auto begin = [&window](const QString &text, int caret) {
        window.first->setProperty("text", text);
        Window::select(*window.first, caret, caret);
    };
    // Both begin with the same half.
    begin(u"😀"_s, 0);
    window.commit(u"😁"_s);
    QCOMPARE(window.text(), u"😁😀"_s);
    window.undo();
    QCOMPARE(window.text(), u"😀"_s);
    begin(u"😀"_s, 2);
    window.commit(u"😂"_s, -2, 2);
    window.undo();
    QCOMPARE(window.text(), u"😀"_s);
    // The halves arrive separately, and half of one is replaced.
    begin(u"a"_s, 1);
    window.commit(QChar(0xd83d));
    window.commit(QChar(0xde00));
    QCOMPARE(window.text(), u"a😀"_s);
    window.undo();
    QCOMPARE(window.text(), u"a"_s);
    window.redo();
    QCOMPARE(window.text(), u"a😀"_s);
    window.commit(u"x"_s, -1, 1);
    QCOMPARE(window.text(), u"ax"_s);
    window.undo();
    QCOMPARE(window.text(), u"a😀"_s);
}

void TextFieldsTest::undoOfPasteAndCut()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"one two"_s);
    window.press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    window.pasteboard.setString(u"2"_s);
    window.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(window.text(), u"one 2"_s);
    window.press(Qt::Key_Home, Qt::ShiftModifier);
    window.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(window.text(), QString());
    window.undo();
    QCOMPARE(window.text(), u"one 2"_s);
    QCOMPARE(window.first->property("selectedText"), u"one 2"_s);
    window.undo();
    QCOMPARE(window.text(), u"one two"_s);
    QCOMPARE(window.first->property("selectedText"), u"two"_s);
    // Words are separate steps.
    window.undo();
    QCOMPARE(window.text(), u"one "_s);
    window.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(window.text(), u"one two"_s);
}

void TextFieldsTest::textOfTheProgramIsNotUndone()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"saved"_s);
    window.first->setProperty("text", QString());
    window.undo();
    QCOMPARE(window.text(), QString());
    window.type(u"new"_s);
    window.undo();
    window.undo();
    QCOMPARE(window.text(), QString());
}

void TextFieldsTest::inputMethodGetsTheKeysWhileComposing()
{
    QFETCH(const QString, type);
    Window window(type);
    window.type(u"ab"_s);
    window.compose(u"ni"_s);
    window.press(Qt::Key_Backspace);
    window.press(Qt::Key_Left);
    window.undo();
    QCOMPARE(window.text(), u"ab"_s);
    QCOMPARE(window.first->property("preeditText"), u"ni"_s);
    window.type(u"c"_s);
    QCOMPARE(window.text(), u"abnic"_s);
    window.compose(u"hao"_s);
    window.second->forceActiveFocus();
    QCOMPARE(window.text(), u"abnichao"_s);
}

void TextFieldsTest::eachParagraphHasItsDirection()
{
    Window window(u"TextEdit"_s);
    const auto sides = [&window] {
        QString found;
        const auto *document = window.first->property("textDocument").value<QQuickTextDocument *>();
        for (QTextBlock block = document->textDocument()->begin(); block.isValid(); block = block.next())
            found += block.layout()->lineAt(0).naturalTextRect().left() > 100 ? u'R' : u'L';
        return found;
    };
    window.pasteboard.setString(u"Buy milk\nלקנות חלב\n12\nabc"_s);
    window.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(sides(), u"LRRL"_s);
    window.undo();
    QCOMPARE(sides(), u"L"_s);
    window.compose(u"ש"_s);
    QCOMPARE(sides(), u"R"_s);
    window.compose({});
    QCOMPARE(sides(), u"L"_s);
}

QTEST_MAIN(TextFieldsTest)
#include "tst_textfields.moc"
