// SPDX-License-Identifier: MIT
#include "panelfixture.h"

#include "panel/tabstop.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

using Field = PanelModel::Field;
using Tab = PanelModel::Tab;

/// Clicks and types in the panel's real view.
class PanelViewTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }
    void noteIsEditedInPlace();
    void editorKeepsItsKeys();
    void fieldTakesTheKeyboardFromTheEditor();
    void clickBesideTheCardsCloses();
    void openingMovesNothingElse();
    void tickingStaysOnTheClosedCard();
    void hoverButtons();
    void tabsChooseTheList();
    void promptIsTickedAndDeleted();
    void longPromptIsCutOff_data();
    void longPromptIsCutOff();
    void menuClearsDonePrompts();
    void tabKeyGoesAround();
    void buttonIsPressedByReturn();

private:
    [[nodiscard]] QQuickWindow &window() const { return m_fixture->panel.window(); }
    /// The one button with this name; null if it is not shown.
    [[nodiscard]] QQuickItem *button(const QString &name) const;
    [[nodiscard]] bool hasEditor() const { return !m_fixture->shown("NoteEditor").isEmpty(); }

    std::unique_ptr<PanelFixture> m_fixture;
};

void PanelViewTest::init()
{
    m_fixture = std::make_unique<PanelFixture>();
    m_fixture->appearance.setReduceMotion(true);
    for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
        m_fixture->addNote(text);
    m_fixture->show();
    QTRY_COMPARE(m_fixture->shown("NoteCard").size(), 3);
}

QQuickItem *PanelViewTest::button(const QString &name) const
{
    for (const char *type : {"SymbolButton", "CopyButton", "TabButton", "PanelMenuButton", "PressButton",
                             "ChecklistRow", "SourceButton"}) {
        for (QQuickItem *item : m_fixture->shown(type)) {
            if (item->property("name").toString() == name)
                return item;
        }
    }
    return nullptr;
}

void PanelViewTest::noteIsEditedInPlace()
{
    Note &two = m_fixture->store->notes().at(1);
    m_fixture->click(*m_fixture->shown("NoteCard").at(1));
    QCOMPARE(m_fixture->model.openNote()->id(), two.id());
    QTRY_VERIFY(m_fixture->model.keyboard()->isEditing());
    m_fixture->press(Qt::Key_End, Qt::ControlModifier);
    m_fixture->type(u" more"_s);
    QCOMPARE(two.text(), u"two more"_s);
    // It has kept its place between the others.
    QCOMPARE(m_fixture->model.notes()->visibleIndex(two.id()), 1);

    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(!hasEditor());
    QCOMPARE(m_fixture->model.notes()->visibleIndex(two.id()), 0);
    QVERIFY(!m_fixture->store->hasPendingChanges());
    // The keys are the list's again.
    m_fixture->press(Qt::Key_Down);
    QCOMPARE(m_fixture->model.selection()->selected(), m_fixture->store->notes().at(1).id());
}

void PanelViewTest::editorKeepsItsKeys()
{
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key_Return);
    QTRY_VERIFY(m_fixture->model.keyboard()->isEditing());
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key_A, Qt::ControlModifier);
    m_fixture->press(Qt::Key_Backspace);
    m_fixture->type(u" "_s);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::None);
    QCOMPARE(m_fixture->store->notes().first()->text(), u" "_s);
    m_fixture->press(Qt::Key_Escape);
    // Left blank, the note is gone.
    QTRY_VERIFY(!hasEditor());
    QCOMPARE(m_fixture->store->notes().count(), 2);
    QVERIFY(!m_fixture->model.selection()->selected() && !m_fixture->store->hasPendingChanges());
    QVERIFY(!m_fixture->application.isHidden());
}

void PanelViewTest::fieldTakesTheKeyboardFromTheEditor()
{
    m_fixture->click(*m_fixture->shown("NoteCard").constFirst());
    QTRY_VERIFY(m_fixture->model.keyboard()->isEditing());
    m_fixture->click(*m_fixture->shown("Composer").constFirst());
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Composer);
    QVERIFY(!m_fixture->model.openNote()->id());
    m_fixture->type(u"new"_s);
    QCOMPARE(m_fixture->model.draft(), u"new"_s);
}

void PanelViewTest::clickBesideTheCardsCloses()
{
    m_fixture->click(*m_fixture->shown("NoteCard").constFirst());
    QTRY_VERIFY(hasEditor());
    // A click in the open card is the editor's.
    m_fixture->click(*m_fixture->shown("NoteForm").constFirst());
    QVERIFY(m_fixture->model.openNote()->id());
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(220, window().height() - 120));
    QVERIFY(!m_fixture->model.openNote()->id());
}

void PanelViewTest::openingMovesNothingElse()
{
    for (int i = 0; i < 40; ++i)
        m_fixture->addNote(u"note %1"_s.arg(i));
    const auto card = [this](int number) { return m_fixture->shown("NoteCard").at(number); };
    QTRY_VERIFY(m_fixture->shown("NoteCard").size() > 4);
    const qreal before = card(1)->mapToScene({}).y();
    const qreal height = card(1)->height();
    m_fixture->click(*card(1));
    QTRY_VERIFY(hasEditor());
    QTRY_VERIFY(card(1)->height() > height);
    QCOMPARE(card(1)->mapToScene({}).y(), before);
    m_fixture->press(Qt::Key_Escape);
    QTRY_COMPARE(card(1)->height(), height);
    QCOMPARE(card(1)->mapToScene({}).y(), before);
}

void PanelViewTest::tickingStaysOnTheClosedCard()
{
    Note &list = m_fixture->addNote(u"list\n\u2610 milk\n\u2610 tea"_s);
    m_fixture->addNote(u"newer"_s);
    const Date date = list.updatedAt();
    QTRY_VERIFY(button(u"Mark “tea” as done"_s));
    m_fixture->click(*button(u"Mark “tea” as done"_s));
    QCOMPARE(list.text(), u"list\n\u2610 milk\n\u2611 tea"_s);
    QCOMPARE(list.updatedAt(), date);
    QVERIFY(!m_fixture->model.openNote()->id() && !m_fixture->model.selection()->selected());
    QTRY_VERIFY(button(u"Mark “tea” as not done"_s));
}

void PanelViewTest::hoverButtons()
{
    QSignalSpy copies(m_fixture->model.cards(), &CardActions::copyRequested);
    QSignalSpy pastes(m_fixture->model.cards(), &CardActions::pasteRequested);
    QVERIFY(!button(u"Copy"_s));
    QTest::mouseMove(&window(), m_fixture->middle(*m_fixture->shown("NoteCard").constFirst()));
    QTRY_VERIFY(button(u"Copy"_s));
    m_fixture->click(*button(u"Copy"_s));
    QCOMPARE(copies.constFirst().constFirst().toString(), u"three"_s);
    QCOMPARE(button(u"Copy"_s)->property("symbol").toString(), u"checkmark"_s);
    m_fixture->click(*button(u"Pin"_s));
    QVERIFY(m_fixture->store->notes().first()->isPinned());
    QTRY_VERIFY(button(u"Unpin"_s));
    m_fixture->click(*button(u"Paste into the App You Came From (Ctrl+Enter)"_s));
    QCOMPARE(pastes.constFirst().constFirst().toString(), u"three"_s);
    m_fixture->click(*button(u"Delete (Ctrl+Backspace)"_s));
    QCOMPARE(m_fixture->store->notes().count(), 2);
    QVERIFY(!m_fixture->model.openNote()->id());
}

void PanelViewTest::tabsChooseTheList()
{
    m_fixture->addNote(u"\u2610 milk"_s);
    m_fixture->addPrompt(u"why?"_s);
    m_fixture->click(*button(u"Checklists"_s));
    QCOMPARE(m_fixture->model.tab(), Tab::Checklists);
    QTRY_COMPARE(m_fixture->shown("NoteCard").size(), 1);
    m_fixture->click(*button(u"Prompts"_s));
    QTRY_COMPARE(m_fixture->shown("PromptCard").size(), 1);
    QCOMPARE(m_fixture->shown("NoteCard").size(), 0);
    // The list that has come has the keyboard.
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key_Return);
    QVERIFY(m_fixture->store->prompts().first()->isDone());
    m_fixture->click(*button(u"Notes"_s));
    QTRY_COMPARE(m_fixture->shown("NoteCard").size(), 4);
}

void PanelViewTest::promptIsTickedAndDeleted()
{
    Prompt &prompt = m_fixture->addPrompt(u"why?"_s);
    m_fixture->model.setTab(Tab::Prompts);
    QTRY_VERIFY(button(u"Mark as done"_s));
    m_fixture->click(*button(u"Mark as done"_s));
    QVERIFY(prompt.isDone());
    QTRY_VERIFY(button(u"Mark as not done"_s));
    m_fixture->click(*button(u"Delete (Ctrl+Backspace)"_s));
    QVERIFY(m_fixture->store->prompts().isEmpty());
    QTRY_VERIFY(!m_fixture->shown("EmptyPrompts").isEmpty());
}

void PanelViewTest::longPromptIsCutOff_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isLong");

    QTest::newRow("five lines") << u"1\n2\n3\n4\n5"_s << false;
    QTest::newRow("six lines") << u"1\n2\n3\n4\n5\n6"_s << true;
    QTest::newRow("one long line") << u"word "_s.repeated(90) << true;
}

void PanelViewTest::longPromptIsCutOff()
{
    QFETCH(QString, text);
    QFETCH(bool, isLong);
    m_fixture->addPrompt(text);
    m_fixture->model.setTab(Tab::Prompts);
    QTRY_COMPARE(m_fixture->shown("ExpandableText").size(), 1);
    const QQuickItem &body = *m_fixture->shown("ExpandableText").constFirst();
    const qreal height = body.height();
    QCOMPARE(button(u"Show more"_s) != nullptr, isLong);
    if (!isLong)
        return;
    m_fixture->click(*button(u"Show more"_s));
    QTRY_VERIFY(button(u"Show less"_s));
    QTRY_VERIFY(body.height() > height + 1);
    m_fixture->click(*button(u"Show less"_s));
    QTRY_COMPARE(body.height(), height);
}

void PanelViewTest::menuClearsDonePrompts()
{
    m_fixture->addPrompt(u"why?"_s).toggleDone();
    m_fixture->addPrompt(u"how?"_s);
    QSignalSpy guides(m_fixture->model.menu(), &PanelMenu::guideRequested);
    m_fixture->click(*button(u"Menu"_s));
    m_fixture->press(Qt::Key_Escape);
    QVERIFY(!m_fixture->application.isHidden());
    m_fixture->click(*button(u"Menu"_s));
    QTRY_COMPARE(m_fixture->shown("MenuRow").size(), 10);
    m_fixture->click(*m_fixture->shown("MenuRow").at(6));
    QCOMPARE(m_fixture->store->prompts().count(), 1);
    QVERIFY(!m_fixture->store->hasPendingChanges());
    QVERIFY(guides.isEmpty());
    m_fixture->click(*button(u"Menu"_s));
    QTRY_COMPARE(m_fixture->shown("MenuRow").size(), 10);
    // Nothing could answer a check for updates, so the entry does nothing.
    m_fixture->click(*m_fixture->shown("MenuRow").at(1));
    m_fixture->press(Qt::Key_Escape);
    m_fixture->click(*button(u"Menu"_s));
    m_fixture->click(*m_fixture->shown("MenuRow").at(0));
    QTRY_COMPARE(guides.size(), 1);
}

void PanelViewTest::tabKeyGoesAround()
{
    m_fixture->model.requestField(Field::Search);
    const auto isPassing = [this] { return qobject_cast<TabStop *>(window().activeFocusItem()) != nullptr; };
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QList<QQuickItem *> stops;
        do {
            stops.append(window().activeFocusItem());
            QVERIFY(stops.constLast());
            m_fixture->press(key);
            QTRY_VERIFY(!isPassing());
        } while (window().activeFocusItem() != stops.constFirst() && stops.size() < 40);
        QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Search);
        // On its way it has come to the list, which shows that by selecting the first card.
        QCOMPARE(m_fixture->model.selection()->selected(), m_fixture->store->notes().first()->id());
        QVERIFY(stops.contains(m_fixture->shown("NoteCard").constFirst()));
        QVERIFY(stops.contains(button(u"Menu"_s)));
        QVERIFY(stops.contains(button(u"Prompts"_s)));
    }
}

void PanelViewTest::buttonIsPressedByReturn()
{
    m_fixture->press(Qt::Key_Down);
    button(u"Checklists"_s)->forceActiveFocus();
    m_fixture->press(Qt::Key_Return);
    QVERIFY(!m_fixture->model.openNote()->id());
    QCOMPARE(m_fixture->model.tab(), Tab::Checklists);
    button(u"Notes"_s)->forceActiveFocus();
    m_fixture->press(Qt::Key_Space);
    QCOMPARE(m_fixture->model.tab(), Tab::Notes);
    // The arrows are the list's, and take the keyboard there.
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key_Return);
    QVERIFY(m_fixture->model.openNote()->id());
}

QTEST_MAIN(PanelViewTest)
#include "tst_panelview.moc"
