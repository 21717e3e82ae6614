// SPDX-License-Identifier: MIT
#include "panelfixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Field = PanelModel::Field;
using Tab = PanelModel::Tab;

/// The rules of the panel's state, without its window.
class PanelModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<World>(); }
    void openingAnotherClosesTheFirst();
    void typedTextIsSavedSoon();
    void deletingTheOpenNoteLetsTheOthersMove();
    void openNoteIsDeletedElsewhere();
    void draftGoesByTab_data();
    void draftGoesByTab();
    void searchFollowsTheTab();
    void returnInSearch();
    void sourceLeadsBack_data();
    void sourceLeadsBack();
    void pastingAnOpenNoteClosesIt();

private:
    /// The panel's keys without its window.
    struct World : PanelFixture
    {
        void edit(const Note &note, const QString &text)
        {
            model.cards()->edit(note.id().toString(QUuid::WithoutBraces), text);
        }
        bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
        {
            return model.handleKey(QKeyEvent(QEvent::KeyPress, key, modifiers));
        }
    };

    std::unique_ptr<World> m_world;
};

void PanelModelTest::openingAnotherClosesTheFirst()
{
    Note &first = m_world->addNote(u"first"_s);
    Note &second = m_world->addNote(u"second"_s);
    m_world->model.openNote()->open(first);
    m_world->edit(first, u"first, changed"_s);
    QCOMPARE(m_world->model.notes()->visibleAt(0), second.id());
    m_world->model.openNote()->open(second);
    QCOMPARE(m_world->model.openNote()->id(), second.id());
    QCOMPARE(m_world->model.selection()->selected(), second.id());
    QCOMPARE(m_world->model.notes()->visibleAt(0), first.id());
    QVERIFY(!m_world->store->hasPendingChanges());
}

void PanelModelTest::typedTextIsSavedSoon()
{
    Note &note = m_world->addNote(u"x"_s);
    QVERIFY(m_world->store->save());
    m_world->model.openNote()->open(note);
    m_world->edit(note, u"xy"_s);
    QVERIFY(m_world->store->hasPendingChanges());
    m_world->clock.advance(500ms);
    QVERIFY(!m_world->store->hasPendingChanges());
    const Date before = note.updatedAt();
    m_world->clock.advance(1s);
    // A report from the editor without a change does not count as one.
    m_world->edit(note, u"xy"_s);
    QCOMPARE(note.updatedAt(), before);
}

void PanelModelTest::deletingTheOpenNoteLetsTheOthersMove()
{
    m_world->addNote(u"other"_s);
    Note &note = m_world->addNote(u"open"_s);
    m_world->model.openNote()->open(note);
    Note &third = m_world->addNote(u"third"_s);
    QVERIFY2(!m_world->press(Qt::Key_Down), "The arrows are the open note's.");
    QVERIFY(m_world->press(Qt::Key_Backspace, Qt::ControlModifier));
    QVERIFY(!m_world->model.openNote()->id());
    third.setText(u"third, changed"_s);
    QCOMPARE(m_world->model.notes()->visibleAt(0), third.id());
}

void PanelModelTest::openNoteIsDeletedElsewhere()
{
    Note &note = m_world->addNote(u"open"_s);
    m_world->model.openNote()->open(note);
    m_world->store->remove(note);
    QVERIFY(!m_world->model.openNote()->id());
    QVERIFY(!m_world->press(Qt::Key_Return));
    QVERIFY(!m_world->press(Qt::Key_Backspace, Qt::ControlModifier));
    QVERIFY(m_world->press(Qt::Key_Down));
}

void PanelModelTest::draftGoesByTab_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("draft");
    QTest::addColumn<Tab>("tabAfter");
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("prompt");

    QTest::newRow("note") << Tab::Notes << u" tea\n[] milk\n"_s << Tab::Notes << u"tea\n\u2610 milk"_s
                          << QString();
    QTest::newRow("a word is not a checklist")
        << Tab::Checklists << u"tea"_s << Tab::Notes << u"tea"_s << QString();
    QTest::newRow("checklist") << Tab::Checklists << u"tea\n[] milk"_s << Tab::Checklists
                               << u"tea\n\u2610 milk"_s << QString();
    QTest::newRow("prompt") << Tab::Prompts << u" why?\n- so "_s << Tab::Prompts << QString()
                            << u"why?\n- so"_s;
    QTest::newRow("blank") << Tab::Prompts << u" \n"_s << Tab::Prompts << QString() << QString();
}

void PanelModelTest::draftGoesByTab()
{
    QFETCH(Tab, tab);
    QFETCH(QString, draft);
    QFETCH(QString, note);
    QFETCH(QString, prompt);
    const bool isBlank = note.isEmpty() && prompt.isEmpty();
    m_world->model.setTab(tab);
    m_world->model.setSearch(u"something else"_s);
    m_world->model.setDraft(draft);
    m_world->model.commitDraft();

    QTEST(m_world->model.tab(), "tabAfter");
    QCOMPARE(m_world->store->notes().isEmpty() ? QString() : m_world->store->notes().first()->text(), note);
    QCOMPARE(m_world->store->prompts().isEmpty() ? QString() : m_world->store->prompts().first()->text(),
             prompt);
    QCOMPARE(m_world->model.draft(), isBlank ? draft : QString());
    QCOMPARE(m_world->model.search().isEmpty(), !isBlank);
    QVERIFY(!m_world->store->hasPendingChanges());
}

void PanelModelTest::searchFollowsTheTab()
{
    m_world->addNote(u"tea"_s);
    m_world->addNote(u"\u2610 coffee"_s);
    m_world->addPrompt(u"tea or coffee?"_s);
    m_world->addPrompt(u"why?"_s);
    m_world->model.setSearch(u" TEA"_s);
    QCOMPARE(m_world->model.notes()->visibleCount(), 1);
    m_world->model.setTab(Tab::Prompts);
    QCOMPARE(m_world->model.prompts()->visibleCount(), 1);
    m_world->model.setSearch(u"coffee"_s);
    m_world->model.setTab(Tab::Checklists);
    QCOMPARE(m_world->model.notes()->visibleCount(), 1);
    m_world->model.setSearch({});
    QCOMPARE(m_world->model.notes()->visibleCount(), 1);
    m_world->model.setTab(Tab::Prompts);
    QCOMPARE(m_world->model.prompts()->visibleCount(), 2);
}

void PanelModelTest::returnInSearch()
{
    Note &note = m_world->addNote(u"tea"_s);
    Note &other = m_world->addNote(u"coffee"_s);
    m_world->model.keyboard()->setActiveField(Field::Search);
    // A selected card that the search has hidden is not opened.
    m_world->model.selection()->select(other.id());
    m_world->model.setSearch(u"tea"_s);
    QVERIFY(m_world->press(Qt::Key_Return));
    QCOMPARE(m_world->model.openNote()->id(), note.id());
    QCOMPARE(m_world->model.keyboard()->requestedField(), Field::None);

    m_world->model.openNote()->close();
    m_world->model.setSearch(u"nothing such"_s);
    QVERIFY(!m_world->press(Qt::Key_Return));

    const Prompt &prompt = m_world->addPrompt(u"tea?"_s);
    m_world->model.setTab(Tab::Prompts);
    m_world->model.setSearch(u"tea"_s);
    QVERIFY(m_world->press(Qt::Key_Return));
    QVERIFY(prompt.isDone());
    QCOMPARE(m_world->model.selection()->selected(), prompt.id());
}

void PanelModelTest::sourceLeadsBack_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("bundle");
    QTest::addColumn<QString>("opened");

    QTest::newRow("page") << u"https://example.org/a?b#c"_s << u"firefox"_s << u"https://example.org/a?b#c"_s;
    QTest::newRow("no page") << QString() << u"mousepad"_s << u"mousepad"_s;
    QTest::newRow("no address") << u"not an address"_s << u"mousepad"_s << u"mousepad"_s;
    QTest::newRow("signs that browsers keep")
        << u" https://example.org/a|b c?d={e}&f=50%&g=%20%zz&h=^[1]#i`j "_s << u"firefox"_s
        << u"https://example.org/a%7Cb%20c?d=%7Be%7D&f=50%25&g=%20%25zz&h=%5E[1]#i%60j"_s;
    QTest::newRow("letters of other languages") << u"https://example.org/caf\u00e9?q=\u05e9"_s << QString()
                                                << u"https://example.org/caf%C3%A9?q=%D7%A9"_s;
    QTest::newRow("nothing") << QString() << QString() << QString();
}

void PanelModelTest::sourceLeadsBack()
{
    QFETCH(QString, url);
    QFETCH(QString, bundle);
    const auto given = [](const QString &text) {
        return text.isEmpty() ? std::nullopt : std::optional(text);
    };
    CaptureSource source;
    source.bundleID = given(bundle);
    source.url = given(url);
    const Note &note = m_world->store->insert(std::make_unique<Note>(m_world->clock, u"x"_s, source));
    CardActions &cards = *m_world->model.cards();
    QString opened;
    connect(&cards, &CardActions::urlRequested, this,
            [&](const QUrl &page) { opened += QString::fromLatin1(page.toEncoded()); });
    connect(&cards, &CardActions::applicationRequested, this, [&](const QString &name) { opened += name; });
    cards.openSource(note.id().toString(QUuid::WithoutBraces));
    QTEST(opened, "opened");
}

void PanelModelTest::pastingAnOpenNoteClosesIt()
{
    Note &note = m_world->addNote(u"tea"_s);
    QSignalSpy pastes(m_world->model.cards(), &CardActions::pasteRequested);
    m_world->model.openNote()->open(note);
    QVERIFY(m_world->press(Qt::Key_Return, Qt::ControlModifier));
    QVERIFY(!m_world->model.openNote()->id());
    QCOMPARE(pastes.constFirst().constFirst().toString(), u"tea"_s);
}

QTEST_MAIN(PanelModelTest)
#include "tst_panelmodel.moc"
