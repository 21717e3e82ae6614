// SPDX-License-Identifier: MIT
#include "components/menuentry.h"
#include "editor/notetextview.h"
#include "paneltest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The context menus, opened with a right click or a key.
class PanelMenusTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cardHasAMenu_data();
    void cardHasAMenu();
    void promptHasAMenu();
    void keysOpenTheMenuOfTheSelectedCard_data();
    void keysOpenTheMenuOfTheSelectedCard();
    void openNoteHasItsMenus();
    void longEntryIsReadAmongLargeTexts_data();
    void longEntryIsReadAmongLargeTexts();
    void fieldHasAMenu_data();
    void fieldHasAMenu();

private:
    void rightClick(const QQuickItem &item)
    {
        QTest::mouseClick(&window(), Qt::RightButton, {}, middle(item));
    }
    /// The entries of the open menu; disabled ones are in brackets.
    [[nodiscard]] QStringList offered() const;
    /// Clicks the entry of the open menu that begins with this text.
    void choose(const QString &text);
};

void PanelMenusTest::init()
{
    PanelTest::init();
    addThree();
}

QStringList PanelMenusTest::offered() const
{
    QStringList lines;
    for (const QQuickItem *row : shown("MenuRow")) {
        const auto *entry = row->property("entry").value<MenuEntry *>();
        if (!entry->isDivider())
            lines.append(entry->isEnabled() ? entry->text() : u'[' + entry->text() + u']');
    }
    return lines;
}

void PanelMenusTest::choose(const QString &text)
{
    for (const QQuickItem *row : shown("MenuRow")) {
        if (row->property("entry").value<MenuEntry *>()->text().startsWith(text))
            return click(*row);
    }
    QFAIL(qPrintable(u"No such line: "_s + text));
}

void PanelMenusTest::cardHasAMenu_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("done");

    QTest::newRow("open") << u"Open"_s << u"opened three"_s;
    QTest::newRow("pin") << u"Pin"_s << u"pinned three"_s;
    QTest::newRow("copy") << u"Copy"_s << u"copied three"_s;
    QTest::newRow("paste") << u"Paste"_s << u"pasted three"_s;
    QTest::newRow("delete") << u"Delete"_s << u"deleted three"_s;
}

void PanelMenusTest::cardHasAMenu()
{
    QFETCH(QString, entry);
    QString done;
    connect(model().cards(), &CardActions::copyRequested, this,
            [&](const QString &text) { done += u"copied "_s + text; });
    connect(model().cards(), &CardActions::pasteRequested, this,
            [&](const QString &text) { done += u"pasted "_s + text; });
    // The click alone does nothing to the card, and neither does the click beside the menu that closes it.
    rightClick(*shown("NoteCard").constFirst());
    QCOMPARE(offered(), QStringList({u"Open"_s, u"Pin"_s, u"Copy"_s,
                                     u"Paste into the App You Came From (⌘↩)"_s, u"Delete (⌘⌫)"_s}));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(20, window().height() - 100));
    QVERIFY(offered().isEmpty());
    QVERIFY(!model().openNote()->id());
    rightClick(*shown("NoteCard").constFirst());
    choose(entry);
    QVERIFY(offered().isEmpty());
    if (model().openNote()->id())
        done += u"opened "_s + store().findNote(*model().openNote()->id())->text();
    for (qsizetype i = 0; i < store().notes().count(); ++i) {
        if (store().notes().at(i).isPinned())
            done += u"pinned "_s + store().notes().at(i).text();
    }
    if (store().notes().count() == 2 && store().notes().first()->text() == u"two")
        done += u"deleted three"_s;
    QTEST(done, "done");
}

void PanelMenusTest::promptHasAMenu()
{
    Prompt &prompt = m_fixture->addPrompt(u"why?"_s);
    model().setTab(PanelModel::Tab::Prompts);
    QTRY_COMPARE(shown("PromptCard").size(), 1);
    // Also on its text, which the mouse can select.
    rightClick(*shown("ExpandableText").constFirst());
    QCOMPARE(offered().value(0), u"Mark as Done"_s);
    QCOMPARE(offered().size(), 4);
    choose(u"Mark"_s);
    QVERIFY(prompt.isDone());
    QTRY_COMPARE(shown("PromptCard").size(), 1);
    rightClick(*shown("PromptCard").constFirst());
    QCOMPARE(offered().value(0), u"Mark as Not Done"_s);
    choose(u"Delete"_s);
    QVERIFY(store().prompts().isEmpty());
}

void PanelMenusTest::keysOpenTheMenuOfTheSelectedCard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("menu key") << Qt::Key_Menu << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("shift and F10") << Qt::Key_F10 << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void PanelMenusTest::keysOpenTheMenuOfTheSelectedCard()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    press(key, modifiers);
    QVERIFY(offered().isEmpty());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QTRY_VERIFY(shown("NoteCard").at(1)->hasActiveFocus());
    // Escape only closes the menu, and the card has the keys again.
    press(key, modifiers);
    QCOMPARE(offered().value(0), u"Open"_s);
    press(Qt::Key_Escape);
    QVERIFY(offered().isEmpty() && panel().isShown());
    QVERIFY(shown("NoteCard").at(1)->hasActiveFocus());
    // The first entry is already current.
    press(key, modifiers);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QVERIFY(store().notes().at(1).isPinned());
    // On the prompts tab, the selected prompt.
    const Prompt &prompt = m_fixture->addPrompt(u"why?"_s);
    model().setTab(PanelModel::Tab::Prompts);
    QTRY_COMPARE(shown("PromptCard").size(), 1);
    press(Qt::Key_Down);
    QTRY_VERIFY(shown("PromptCard").constFirst()->hasActiveFocus());
    press(key, modifiers);
    press(Qt::Key_Return);
    QVERIFY(prompt.isDone());
}

void PanelMenusTest::openNoteHasItsMenus()
{
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(offered(), QStringList({u"[Undo]"_s, u"[Redo]"_s, u"[Cut]"_s, u"[Copy]"_s, u"Paste"_s,
                                     u"[Delete]"_s, u"Select All"_s}));
    choose(u"Select All"_s);
    QTRY_VERIFY(model().keyboard()->isEditing());
    const QString before = store().notes().first()->text();
    press(Qt::Key_F10, Qt::ShiftModifier);
    choose(u"Delete"_s);
    QCOMPARE(store().notes().first()->text(), QString());
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(store().notes().first()->text(), before);
    QVERIFY(model().openNote()->id());
    // Beside the text, the menu is the card's, which has nothing to open.
    const QQuickItem &card = *shown("NoteCard").constFirst();
    const QPoint below = card.mapToScene(QPointF(card.width() / 2, card.height() - 4)).toPoint();
    QTest::mouseClick(&window(), Qt::RightButton, {}, below);
    QCOMPARE(offered().value(0), u"Pin"_s);
    choose(u"Pin"_s);
    QVERIFY(store().notes().first()->isPinned());
    QVERIFY(model().openNote()->id());
}

void PanelMenusTest::longEntryIsReadAmongLargeTexts_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::newRow("ordinary") << 1.0;
    QTest::newRow("large") << 1.5;
    QTest::newRow("very large") << 2.0;
}

void PanelMenusTest::longEntryIsReadAmongLargeTexts()
{
    QFETCH(const qreal, scale);
    m_fixture->appearance.setTextFont({.family = {}, .scale = scale});
    rightClick(*shown("NoteCard").constFirst());
    qreal above = 0;
    for (QQuickItem *row : shown("MenuRow")) {
        const QRectF place = row->mapRectToScene(row->boundingRect());
        QVERIFY(place.left() >= 0 && place.right() <= window().width());
        QVERIFY(place.top() >= above);
        above = place.bottom();
        for (QQuickItem *label : row->childItems()) {
            if (!label->property("truncated").isValid() || label->property("text").toString().isEmpty())
                continue;
            QVERIFY2(!label->property("truncated").toBool(), qPrintable(label->property("text").toString()));
            QVERIFY(place.contains(label->mapRectToScene(label->boundingRect())));
        }
    }
    QVERIFY(above <= window().height());
}

void PanelMenusTest::fieldHasAMenu_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QByteArray>("type");
    QTest::newRow("search") << Field::Search << QByteArray("SearchField");
    QTest::newRow("composer") << Field::Composer << QByteArray("Composer");
}

void PanelMenusTest::fieldHasAMenu()
{
    QFETCH(Field, field);
    QFETCH(QByteArray, type);
    const auto text = [&] { return field == Field::Search ? model().search() : model().draft(); };
    // A right click also focuses the field.
    rightClick(*shown(type).constFirst());
    QCOMPARE(offered(), QStringList({u"[Cut]"_s, u"[Copy]"_s, u"Paste"_s, u"[Delete]"_s, u"[Select All]"_s}));
    m_fixture->pasteboard.setString(u"one two"_s);
    choose(u"Paste"_s);
    QCOMPARE(model().keyboard()->activeField(), field);
    QTRY_COMPARE(text(), u"one two"_s);
    rightClick(*shown(type).constFirst());
    QCOMPARE(offered(), QStringList({u"[Cut]"_s, u"[Copy]"_s, u"Paste"_s, u"[Delete]"_s, u"Select All"_s}));
    choose(u"Select All"_s);
    // The selection is kept while the menu is open, also when opened with the key.
    press(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(offered(), QStringList({u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Delete"_s, u"Select All"_s}));
    press(Qt::Key_Return);
    QCOMPARE(text(), QString());
    press(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(text(), u"one two"_s);
    press(Qt::Key_Home);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Right, Qt::ShiftModifier);
    rightClick(*shown(type).constFirst());
    choose(u"Copy"_s);
    rightClick(*shown(type).constFirst());
    choose(u"Delete"_s);
    QCOMPARE(text(), u"two"_s);
    press(Qt::Key_End);
    press(Qt::Key_Menu);
    choose(u"Paste"_s);
    QTRY_COMPARE(text(), u"twoone "_s);
}

QTEST_MAIN(PanelMenusTest)
#include "tst_panelmenus.moc"
