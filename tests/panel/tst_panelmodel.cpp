// SPDX-License-Identifier: MIT
#include "panelfixture.h"

#include "panel/panelkeymap.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

using Action = PanelAction;
using Field = PanelModel::Field;
using Tab = PanelModel::Tab;

/// The rules of the panel's state, without its window.
class PanelModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<World>(); }
    void keyMap_data();
    void keyMap();
    void openingAnotherClosesTheFirst();
    void blankNoteGoesWhenItIsClosed();
    void typedTextIsSavedSoon();
    void deletingTheOpenNoteLetsTheOthersMove();
    void openNoteIsDeletedElsewhere();
    void draftGoesByTab_data();
    void draftGoesByTab();
    void clearingDonePrompts();
    void searchFollowsTheTab();
    void returnInSearch();
    void fieldClosesTheNote();
    void sourceLeadsBack_data();
    void sourceLeadsBack();
    void pastingAnOpenNoteClosesIt();

private:
    /// The model over the platform in memory.
    struct World
    {
        Note &addNote(const QString &text, const std::optional<CaptureSource> &source = std::nullopt)
        {
            Note &note = store->insert(std::make_unique<Note>(clock, text, source));
            clock.advance(1s);
            return note;
        }
        Prompt &addPrompt(const QString &text)
        {
            Prompt &prompt = store->insert(std::make_unique<Prompt>(clock, text, Prompt::Origin::FollowUp));
            clock.advance(1s);
            return prompt;
        }
        void edit(const Note &note, const QString &text)
        {
            model.cards()->edit(note.id().toString(QUuid::WithoutBraces), text);
        }
        bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
        {
            return model.handleKey(QKeyEvent(QEvent::KeyPress, key, modifiers));
        }

        QTemporaryDir folder;
        MemoryClock clock;
        std::unique_ptr<NotesStore> store = NotesStore::open(folder.filePath(u"Notes.store"_s), clock).store;
        MemoryDefaults defaults;
        MemoryApplication application;
        MemoryAccessibility accessibility{clock};
        PanelModel model{*store, clock, defaults, application, accessibility};
    };

    std::unique_ptr<World> m_world;
};

void PanelModelTest::keyMap_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<PanelKeyState>("state");
    QTest::addColumn<Action>("action");

    const Qt::KeyboardModifiers plain = Qt::NoModifier;
    const Qt::KeyboardModifiers command = Qt::ControlModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const PanelKeyState list;
    const PanelKeyState open{.isNoteOpen = true};
    const PanelKeyState search{.field = Field::Search};
    const PanelKeyState found{.field = Field::Search, .isSearching = true};
    const PanelKeyState composer{.field = Field::Composer};
    const PanelKeyState writing{.field = Field::Composer, .isSearching = true};

    QTest::newRow("new note") << Qt::Key_N << command << list << Action::WriteNote;
    QTest::newRow("new note from search") << Qt::Key_N << command << found << Action::WriteNote;
    QTest::newRow("a letter") << Qt::Key_N << plain << list << Action::Pass;
    QTest::newRow("n with more") << Qt::Key_N << (command | shift) << list << Action::Pass;
    QTest::newRow("find") << Qt::Key_F << command << composer << Action::Search;
    QTest::newRow("down") << Qt::Key_Down << plain << list << Action::MoveSelection;
    QTest::newRow("up from search") << Qt::Key_Up << plain << found << Action::MoveSelection;
    QTest::newRow("down in composer") << Qt::Key_Down << plain << composer << Action::Pass;
    QTest::newRow("down, note open") << Qt::Key_Down << plain << open << Action::Pass;
    QTest::newRow("down with Shift") << Qt::Key_Down << shift << list << Action::Pass;
    QTest::newRow("down on the number pad")
        << Qt::Key_Down << Qt::KeyboardModifiers(Qt::KeypadModifier) << list << Action::MoveSelection;
    QTest::newRow("delete") << Qt::Key_Backspace << command << list << Action::DeleteSelected;
    QTest::newRow("delete, note open") << Qt::Key_Backspace << command << open << Action::DeleteSelected;
    QTest::newRow("delete in search") << Qt::Key_Backspace << command << search << Action::Pass;
    QTest::newRow("backspace") << Qt::Key_Backspace << plain << list << Action::Pass;
    QTest::newRow("escape, note open") << Qt::Key_Escape << plain << open << Action::CloseNote;
    QTest::newRow("escape") << Qt::Key_Escape << plain << list << Action::HidePanel;
    QTest::newRow("escape, searching") << Qt::Key_Escape << plain << found << Action::ClearSearch;
    QTest::newRow("escape, empty search") << Qt::Key_Escape << plain << search << Action::LeaveField;
    QTest::newRow("escape in composer") << Qt::Key_Escape << plain << writing << Action::LeaveField;
    QTest::newRow("escape with Alt") << Qt::Key_Escape << Qt::KeyboardModifiers(Qt::AltModifier) << list
                                     << Action::Pass;
    QTest::newRow("return in search") << Qt::Key_Return << plain << search << Action::OpenFound;
    QTest::newRow("command-return in search") << Qt::Key_Return << command << search << Action::Pass;
    QTest::newRow("return in composer") << Qt::Key_Enter << plain << composer << Action::CommitDraft;
    QTest::newRow("shift-return in composer") << Qt::Key_Return << shift << composer << Action::BreakLine;
    QTest::newRow("command-return in composer") << Qt::Key_Return << command << composer << Action::Pass;
    QTest::newRow("return") << Qt::Key_Return << plain << list << Action::OpenSelected;
    QTest::newRow("command-return") << Qt::Key_Enter << command << list << Action::PasteSelected;
    QTest::newRow("shift-return") << Qt::Key_Return << shift << list << Action::Pass;
    QTest::newRow("another key") << Qt::Key_Tab << plain << list << Action::Pass;
}

void PanelModelTest::keyMap()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(PanelKeyState, state);
    QTEST(panelAction(key, modifiers, state), "action");
}

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

void PanelModelTest::blankNoteGoesWhenItIsClosed()
{
    Note &note = m_world->addNote(u"x"_s);
    const RecordId id = note.id();
    m_world->model.openNote()->open(note);
    m_world->edit(note, u" \n "_s);
    m_world->model.openNote()->close();
    QVERIFY(!m_world->store->findNote(id));
    QVERIFY(!m_world->model.selection()->selected());
    QVERIFY(!m_world->store->hasPendingChanges());
}

void PanelModelTest::typedTextIsSavedSoon()
{
    Note &note = m_world->addNote(u"x"_s);
    m_world->store->save();
    m_world->model.openNote()->open(note);
    m_world->edit(note, u"xy"_s);
    QVERIFY(m_world->store->hasPendingChanges());
    m_world->clock.advance(2s);
    QVERIFY(!m_world->store->hasPendingChanges());
    const Date before = note.updatedAt();
    m_world->clock.advance(1s);
    // What the editor reports without a change is none.
    m_world->edit(note, u"xy"_s);
    QCOMPARE(note.updatedAt(), before);
}

void PanelModelTest::deletingTheOpenNoteLetsTheOthersMove()
{
    m_world->addNote(u"other"_s);
    Note &note = m_world->addNote(u"open"_s);
    m_world->model.openNote()->open(note);
    Note &third = m_world->addNote(u"third"_s);
    m_world->model.cards()->remove(note.id());
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
    QTest::newRow("a word is no checklist")
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

void PanelModelTest::clearingDonePrompts()
{
    m_world->addPrompt(u"one"_s).toggleDone();
    m_world->addPrompt(u"two"_s);
    m_world->addPrompt(u"three"_s).toggleDone();
    QVERIFY(m_world->model.prompts()->hasDone());
    m_world->model.cards()->clearDonePrompts();
    QVERIFY(!m_world->model.prompts()->hasDone());
    QCOMPARE(m_world->store->prompts().count(), 1);
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
    // A selection that the search has taken away is not opened unseen.
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

void PanelModelTest::fieldClosesTheNote()
{
    m_world->model.openNote()->open(m_world->addNote(u"tea"_s));
    m_world->model.keyboard()->setActiveField(Field::None);
    QVERIFY(m_world->model.openNote()->id());
    m_world->model.keyboard()->setActiveField(Field::Composer);
    QVERIFY(!m_world->model.openNote()->id());
}

void PanelModelTest::sourceLeadsBack_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("bundle");
    QTest::addColumn<QString>("opened");

    QTest::newRow("page") << u"https://example.org/a?b#c"_s << u"firefox"_s << u"https://example.org/a?b#c"_s;
    QTest::newRow("no page") << QString() << u"mousepad"_s << u"mousepad"_s;
    QTest::newRow("no address") << u"not an address"_s << u"mousepad"_s << u"mousepad"_s;
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
    const Note &note = m_world->addNote(u"x"_s, source);
    CardActions &cards = *m_world->model.cards();
    QString opened;
    connect(&cards, &CardActions::urlRequested, this, [&](const QUrl &page) { opened += page.toString(); });
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
