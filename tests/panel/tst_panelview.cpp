// SPDX-License-Identifier: MIT
#include "paneltest.h"

#include "editor/notetextview.h"
#include "panel/tabstop.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Tab = PanelModel::Tab;

/// Clicking and typing in the panel's real view.
class PanelViewTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cardMayGoUnderItsHelp();
    void searchIsReadFromItsBeginning();
    void foundBoxesAreTickedAtOnce();
    void tickingStaysOnTheClosedCard();
    void hoverButtons();
    void tabsChooseTheList();
    void mouseDoesNotDragTheList();
    void promptIsTickedAndDeleted();
    void longPromptIsCutOff_data();
    void longPromptIsCutOff();
    void menuClearsDonePrompts();
    void tabKeyGoesAround();
    void buttonIsPressedByReturn();
    void bannerFollowsTrust();
    void unsavedChangesAreReportedUntilSaved();
};

void PanelViewTest::init()
{
    PanelTest::init();
    addThree();
}

void PanelViewTest::cardMayGoUnderItsHelp()
{
    QTest::failOnWarning(QRegularExpression(u"TypeError"_s));
    QTest::mouseMove(&window(), middle(*shown("NoteCard").constFirst()));
    QTRY_VERIFY(button(u"Pin"_s));
    QTest::mouseMove(&window(), middle(*button(u"Pin"_s)));
    QTRY_COMPARE(shown("HelpBubble").size(), 1);
    store().remove(*store().notes().first());
    QTRY_COMPARE(shown("NoteCard").size(), 2);
    QTRY_VERIFY(shown("HelpBubble").isEmpty());
}

void PanelViewTest::searchIsReadFromItsBeginning()
{
    for (int i = 0; i < 30; ++i)
        addNote(u"note %1"_s.arg(i));
    const auto firstRow = [this] { return shown("NoteRow").constFirst()->property("index").toInt(); };
    press(Qt::Key_Up);
    QTRY_VERIFY(firstRow() > 0);
    model().setSearch(u"o"_s);
    QTRY_COMPARE(firstRow(), 0);
}

void PanelViewTest::foundBoxesAreTickedAtOnce()
{
    m_fixture->appearance.setReduceMotion(false);
    addNote(u"tea\n☑ bought"_s);
    addNote(u"milk\n☐ wanted"_s);
    const auto tickOf = [](const QQuickItem *circle) { return circle->childItems().constLast()->opacity(); };
    QTRY_COMPARE(shown("CheckCircle").size(), 2);
    const QQuickItem *first = shown("CheckCircle").constFirst();
    QCOMPARE(tickOf(first), 0.0);
    model().setSearch(u"tea"_s);
    QCOMPARE(shown("CheckCircle").constFirst(), first);
    QCOMPARE(tickOf(first), 1.0);
    // A click makes it grow.
    click(*shown("ChecklistRow").constFirst());
    QVERIFY(tickOf(first) > 0);
    QTRY_COMPARE(tickOf(first), 0.0);
}

void PanelViewTest::tickingStaysOnTheClosedCard()
{
    Note &list = addNote(u"list\n\u2610 milk\n\u2610 tea"_s);
    addNote(u"newer"_s);
    const Date date = list.updatedAt();
    QTRY_VERIFY(button(u"Mark “tea” as done"_s));
    click(*button(u"Mark “tea” as done"_s));
    QCOMPARE(list.text(), u"list\n\u2610 milk\n\u2611 tea"_s);
    QCOMPARE(list.updatedAt(), date);
    QVERIFY(!model().openNote()->id() && !model().selection()->selected());
    QTRY_VERIFY(button(u"Mark “tea” as not done"_s));
}

void PanelViewTest::hoverButtons()
{
    QSignalSpy copies(model().cards(), &CardActions::copyRequested);
    QSignalSpy pastes(model().cards(), &CardActions::pasteRequested);
    QVERIFY(!button(u"Copy"_s));
    QTest::mouseMove(&window(), middle(*shown("NoteCard").constFirst()));
    QTRY_VERIFY(button(u"Copy"_s));
    click(*button(u"Copy"_s));
    QCOMPARE(copies.constFirst().constFirst().toString(), u"three"_s);
    QCOMPARE(button(u"Copy"_s)->property("symbol").toString(), u"checkmark"_s);
    click(*button(u"Pin"_s));
    QVERIFY(store().notes().first()->isPinned());
    QTRY_VERIFY(button(u"Unpin"_s));
    click(*button(u"Paste into the App You Came From (Ctrl+Enter)"_s));
    QCOMPARE(pastes.constFirst().constFirst().toString(), u"three"_s);
    click(*button(u"Delete (Ctrl+Backspace)"_s));
    QCOMPARE(store().notes().count(), 2);
    QVERIFY(!model().openNote()->id());
}

void PanelViewTest::tabsChooseTheList()
{
    addNote(u"\u2610 milk"_s);
    m_fixture->addPrompt(u"why?"_s);
    click(*button(u"Checklists"_s));
    QCOMPARE(model().tab(), Tab::Checklists);
    QTRY_COMPARE(shown("NoteCard").size(), 1);
    click(*button(u"Prompts"_s));
    QTRY_COMPARE(shown("PromptCard").size(), 1);
    QCOMPARE(shown("NoteCard").size(), 0);
    // The list that is now shown has the focus.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QVERIFY(store().prompts().first()->isDone());
    click(*button(u"Notes"_s));
    QTRY_COMPARE(shown("NoteCard").size(), 4);
}

void PanelViewTest::mouseDoesNotDragTheList()
{
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    QTRY_VERIFY(shown("NoteCard").size() > 4);
    const auto top = [this] { return shown("NoteRow").constFirst()->mapToScene({}).y(); };
    const qreal before = top();
    // On a card, and in the gap between two.
    for (const qreal y : {0.5, -0.05}) {
        const QQuickItem &card = *shown("NoteCard").at(3);
        const QPoint from = card.mapToScene(QPointF(card.width() / 2, card.height() * y)).toPoint();
        QTest::mousePress(&window(), Qt::LeftButton, {}, from);
        for (int moved = 10; moved <= 200; moved += 10)
            QTest::mouseMove(&window(), from - QPoint(0, moved));
        QTest::mouseRelease(&window(), Qt::LeftButton, {}, from - QPoint(0, 200));
        QCOMPARE(top(), before);
    }
    // A finger and the wheel still scroll it.
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const QPoint from = middle(*shown("NoteCard").at(3));
    QTest::touchEvent(&window(), screen.get()).press(0, from, &window());
    for (int moved = 10; moved <= 200; moved += 10)
        QTest::touchEvent(&window(), screen.get()).move(0, from - QPoint(0, moved), &window());
    QTest::touchEvent(&window(), screen.get()).release(0, from - QPoint(0, 200), &window());
    QTRY_VERIFY(top() < before - 50);
    const qreal moved = top();
    QTRY_COMPARE(shown("NoteRow").constFirst()->mapToScene({}).y(), top());
    QWheelEvent wheel(from, window().mapToGlobal(from), {}, QPoint(0, -240), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &wheel);
    QTRY_VERIFY(top() != moved);
}

void PanelViewTest::promptIsTickedAndDeleted()
{
    Prompt &prompt = m_fixture->addPrompt(u"why?"_s);
    model().setTab(Tab::Prompts);
    QTRY_VERIFY(button(u"Mark as done"_s));
    click(*button(u"Mark as done"_s));
    QVERIFY(prompt.isDone());
    QTRY_VERIFY(button(u"Mark as not done"_s));
    click(*button(u"Delete (Ctrl+Backspace)"_s));
    QVERIFY(store().prompts().isEmpty());
    QTRY_VERIFY(!shown("EmptyPrompts").isEmpty());
}

void PanelViewTest::longPromptIsCutOff_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isLong");

    QTest::newRow("five lines") << u"1\n2\n3\n4\n5"_s << false;
    QTest::newRow("six lines") << u"1\n2\n3\n4\n5.\n6"_s << true;
    QTest::newRow("one long line") << u"word "_s.repeated(90) << true;
}

void PanelViewTest::longPromptIsCutOff()
{
    QFETCH(QString, text);
    QFETCH(bool, isLong);
    m_fixture->addPrompt(text);
    model().setTab(Tab::Prompts);
    QTRY_COMPARE(shown("ExpandableText").size(), 1);
    const QQuickItem &body = *shown("ExpandableText").constFirst();
    const qreal height = body.height();
    QCOMPARE(button(u"Show more"_s) != nullptr, isLong);
    if (!isLong)
        return;
    // An ellipsis does not follow a full stop or a space.
    const auto texts = body.children();
    const auto edit =
        std::ranges::find_if(texts, [](const QObject *each) { return each->inherits("QQuickTextEdit"); });
    QVERIFY(edit != texts.end());
    const QString cut = (*edit)->property("text").toString();
    QVERIFY2(cut.endsWith(u'…') && cut.at(cut.size() - 2).isLetterOrNumber(), qPrintable(cut));
    click(*button(u"Show more"_s));
    QTRY_VERIFY(button(u"Show less"_s));
    QTRY_VERIFY(body.height() > height + 1);
    click(*button(u"Show less"_s));
    QTRY_COMPARE(body.height(), height);
}

void PanelViewTest::menuClearsDonePrompts()
{
    m_fixture->addPrompt(u"why?"_s).toggleDone();
    m_fixture->addPrompt(u"how?"_s);
    QSignalSpy guides(model().menu(), &PanelMenu::guideRequested);
    click(*button(u"Menu"_s));
    press(Qt::Key_Escape);
    QVERIFY(!m_fixture->application.isHidden());
    click(*button(u"Menu"_s));
    QTRY_COMPARE(shown("MenuRow").size(), 10);
    click(*shown("MenuRow").at(6));
    QCOMPARE(store().prompts().count(), 1);
    QVERIFY(!store().hasPendingChanges());
    QVERIFY(guides.isEmpty());
    click(*button(u"Menu"_s));
    QTRY_COMPARE(shown("MenuRow").size(), 10);
    // Nothing can check for updates, so the entry does nothing.
    click(*shown("MenuRow").at(1));
    press(Qt::Key_Escape);
    click(*button(u"Menu"_s));
    click(*shown("MenuRow").at(0));
    QTRY_COMPARE(guides.size(), 1);
}

void PanelViewTest::tabKeyGoesAround()
{
    model().requestField(Field::Search);
    const auto isPassing = [this] { return qobject_cast<TabStop *>(window().activeFocusItem()) != nullptr; };
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QList<QQuickItem *> stops;
        do {
            stops.append(window().activeFocusItem());
            QVERIFY(stops.constLast());
            press(key);
            QTRY_VERIFY(!isPassing());
        } while (window().activeFocusItem() != stops.constFirst() && stops.size() < 40);
        QCOMPARE(model().keyboard()->activeField(), Field::Search);
        // On its way it has reached the list, which shows that by selecting the first card.
        QCOMPARE(model().selection()->selected(), store().notes().first()->id());
        QVERIFY(stops.contains(shown("NoteCard").constFirst()));
        QVERIFY(stops.contains(button(u"Menu"_s)));
        QVERIFY(stops.contains(button(u"Prompts"_s)));
    }
}

void PanelViewTest::buttonIsPressedByReturn()
{
    press(Qt::Key_Down);
    button(u"Checklists"_s)->forceActiveFocus();
    press(Qt::Key_Return);
    QVERIFY(!model().openNote()->id());
    QCOMPARE(model().tab(), Tab::Checklists);
    button(u"Notes"_s)->forceActiveFocus();
    press(Qt::Key_Space);
    QCOMPARE(model().tab(), Tab::Notes);
    // The arrows belong to the list, and move the focus there.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QVERIFY(model().openNote()->id());
}

void PanelViewTest::bannerFollowsTrust()
{
    m_fixture->accessibility.setTrusted(false);
    QTRY_VERIFY(button(u"Open Settings"_s));
    click(*button(u"Open Settings"_s));
    QCOMPARE(m_fixture->accessibility.askCount(), 1);
    m_fixture->accessibility.setTrusted(true);
    QTRY_VERIFY(!button(u"Open Settings"_s));
}

void PanelViewTest::unsavedChangesAreReportedUntilSaved()
{
    QVERIFY(store().save());
    const auto banner = [this] {
        const QList<QQuickItem *> found = shown("ProblemBanner");
        return found.isEmpty() ? QString() : found.first()->property("problem").toString();
    };
    QCOMPARE(banner(), QString());
    // Also reported in an open note. The file is out of the way when it is to be written.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(hasEditor());
    const QString path = m_fixture->folder.filePath(u"Notes.store"_s);
    QVERIFY(QFile::rename(path, path + u".aside"_s));
    // And a new one cannot be created.
    QVERIFY(QDir().mkpath(path + u".new/in the way"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"could not be saved"_s));
    type(u"more"_s);
    m_fixture->clock.advance(500ms);
    QTRY_VERIFY2(banner().startsWith(u"Not saved: "_s), qPrintable(banner()));
    QVERIFY(hasEditor());
    QVERIFY(QFile::rename(path + u".aside"_s, path));
    m_fixture->clock.advance(5s);
    QTRY_COMPARE(banner(), QString());
    QVERIFY(!store().hasPendingChanges());
}

QTEST_MAIN(PanelViewTest)
#include "tst_panelview.moc"
