// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/accessibletree.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Fails this test function with everything that the panel exposes.
#define VERIFY_TOLD(condition) QVERIFY2(condition, told().constData())

using State = AccessibleObject::State;

namespace {

QByteArray line(const AccessibleObject &object)
{
    return u"%1 “%2” (%3) %4 “%5” %6\n"_s.arg(object.role, object.name, object.description)
        .arg(object.states, 0, 16)
        .arg(object.text)
        .arg(object.caret)
        .toUtf8();
}

} // namespace

/// The panel as a screen reader sees it over the accessibility bus.
class TestPanelReader : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void controlsSayWhatTheyAre();
    void cardsSayWhatTheyHold();
    void openNoteIsAnEditableText();
    void hintsSayTheirKeys();
    void nothingThatTakesTheKeyboardIsUnnamed();
    void languageIsThatOfTheDesktop();

private:
    using Objects = QList<AccessibleObject>;

    [[nodiscard]] bool fillStore();
    void press(const QList<xcb_keysym_t> &keys) { m_desktop->keyboard().tap(keys, kFinger); }
    void click(const QString &role, const QString &name);
    /// Reads everything that the panel exposes until this condition holds.
    template <typename Condition>
    [[nodiscard]] bool waitUntil(const Condition &condition);
    /// Waits for an object with this role and state whose name begins with this text.
    [[nodiscard]] bool waitFor(const QString &role, const QString &name, State state = State::Showing);
    [[nodiscard]] std::optional<AccessibleObject> find(const QString &role, const QString &name) const;
    /// Focusable objects without a name, one per line.
    [[nodiscard]] QByteArray unnamed() const;
    /// Everything that is exposed, one object per line, for a failing test's message.
    [[nodiscard]] QByteArray told() const;

    std::unique_ptr<AccessibleTree> m_tree;
    Objects m_objects;
};

void TestPanelReader::init()
{
    VeskTest::init();
    QVERIFY(m_desktop);
    // The first start creates the store, which exists when it ends.
    const std::unique_ptr<ChildProcess> first = m_desktop->startVesk();
    QVERIFY(first && first->quit());
    QVERIFY(fillStore());
    QVERIFY(startVesk());
    m_tree = std::make_unique<AccessibleTree>(m_desktop->busAddress());
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    VERIFY_TOLD(waitFor(u"list item"_s, u"Of the train"_s));
}

void TestPanelReader::cleanup()
{
    m_tree.reset();
    VeskTest::cleanup();
}

bool TestPanelReader::fillStore()
{
    const qint64 threeHoursAgo = (QDateTime::currentMSecsSinceEpoch() - qint64{3} * 3'600'000) * 1000;
    try {
        SQLite::Database database(m_desktop->notes().path().toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Statement note(database, "INSERT INTO Note VALUES (?, ?, ?, ?, ?, ?, NULL, NULL, NULL)");
        const auto add = [&](const char *id, const char *text, bool isPinned, const char *app) {
            note.bind(1, id);
            note.bind(2, text);
            note.bind(3, int64_t{threeHoursAgo});
            note.bind(4, int64_t{threeHoursAgo});
            note.bind(5, isPinned ? 1 : 0);
            note.bind(6, app);
            note.exec();
            note.reset();
        };
        add("00000000-0000-4000-8000-000000000001", "Of the train\nIt leaves at nine.", true, "Mousepad");
        add("00000000-0000-4000-8000-000000000002", "Errands\n☑ Stamps\n☐ Bread", false, "Mousepad");
        database.exec("INSERT INTO Prompt VALUES ('00000000-0000-4000-8000-000000000003', 'Say more', 0, "
                      + std::to_string(threeHoursAgo)
                      + ", 0), ('00000000-0000-4000-8000-000000000004', 'Say less', 1, "
                      + std::to_string(threeHoursAgo) + ", 0)");
        return true;
    } catch (const SQLite::Exception &error) {
        qWarning() << error.what();
        return false;
    }
}

template <typename Condition>
bool TestPanelReader::waitUntil(const Condition &condition)
{
    return m_desktop->display().waitUntil(kBound, [&] {
        m_objects = m_tree->objects(m_vesk->pid());
        return condition();
    });
}

bool TestPanelReader::waitFor(const QString &role, const QString &name, State state)
{
    return waitUntil([&] {
        const std::optional<AccessibleObject> found = find(role, name);
        return found && found->is(state);
    });
}

std::optional<AccessibleObject> TestPanelReader::find(const QString &role, const QString &name) const
{
    const auto found = std::ranges::find_if(m_objects, [&](const AccessibleObject &object) {
        return object.role == role && object.name.startsWith(name) && object.is(State::Showing);
    });
    return found == m_objects.end() ? std::nullopt : std::optional(*found);
}

QByteArray TestPanelReader::told() const
{
    QByteArray lines = "Told:\n";
    for (const AccessibleObject &object : m_objects) {
        if (object.is(State::Showing))
            lines += line(object);
    }
    return lines;
}

void TestPanelReader::click(const QString &role, const QString &name)
{
    const std::optional<AccessibleObject> found = find(role, name);
    VERIFY_TOLD(found);
    m_desktop->pointer().click(found->area.center());
}

QByteArray TestPanelReader::unnamed() const
{
    QByteArray lines;
    for (const AccessibleObject &object : m_objects) {
        const bool isVague = object.name.isEmpty() || object.role.isEmpty() || object.role == u"unknown"
                             || object.role == u"invalid";
        if (object.is(State::Showing) && object.is(State::Focusable) && isVague)
            lines += line(object);
    }
    return lines;
}

void TestPanelReader::controlsSayWhatTheyAre()
{
    VERIFY_TOLD(find(u"page tab list"_s, u"Tabs"_s));
    const std::optional<AccessibleObject> notes = find(u"page tab"_s, u"Notes"_s);
    VERIFY_TOLD(notes && notes->is(State::Selected) && notes->description == u"2");
    const std::optional<AccessibleObject> prompts = find(u"page tab"_s, u"Prompts"_s);
    VERIFY_TOLD(prompts && !prompts->is(State::Selected) && prompts->description == u"1");
    VERIFY_TOLD(find(u"button menu"_s, u"Menu"_s));
    const std::optional<AccessibleObject> composer = find(u"text"_s, u"Write a note…"_s);
    VERIFY_TOLD(composer && composer->is(State::Editable) && composer->is(State::MultiLine));

    VERIFY_TOLD(!find(u"push button"_s, u"Clear Search"_s));
    click(u"text"_s, u"Search"_s);
    VERIFY_TOLD(waitFor(u"text"_s, u"Search"_s, State::Focused));
    m_desktop->keyboard().type(u"bread"_s);
    VERIFY_TOLD(waitUntil([this] {
        const std::optional<AccessibleObject> search = find(u"text"_s, u"Search"_s);
        return search && search->text == u"bread" && search->caret == 5
               && find(u"push button"_s, u"Clear Search"_s) && !find(u"list item"_s, u"Of the train"_s);
    }));
    click(u"push button"_s, u"Clear Search"_s);
    VERIFY_TOLD(waitFor(u"list item"_s, u"Of the train"_s));

    click(u"button menu"_s, u"Menu"_s);
    VERIFY_TOLD(waitFor(u"menu item"_s, u"Clear Done Prompts"_s));
    VERIFY_TOLD(find(u"popup menu"_s, u"Menu"_s) && find(u"menu item"_s, u"Quit Vesk"_s));
}

void TestPanelReader::cardsSayWhatTheyHold()
{
    const std::optional<AccessibleObject> train = find(u"list item"_s, u"Of the train"_s);
    VERIFY_TOLD(train->description == u"pinned, 3 hr. ago, from Mousepad, It leaves at nine.");
    const std::optional<AccessibleObject> errands = find(u"list item"_s, u"Errands"_s);
    VERIFY_TOLD(errands && errands->description == u"1 of 2 done, 3 hr. ago, from Mousepad");
    const std::optional<AccessibleObject> stamps = find(u"check box"_s, u"Mark “Stamps” as not done"_s);
    VERIFY_TOLD(stamps && stamps->is(State::Checked));
    const std::optional<AccessibleObject> bread = find(u"check box"_s, u"Mark “Bread” as done"_s);
    VERIFY_TOLD(bread && !bread->is(State::Checked));

    click(u"check box"_s, bread->name);
    VERIFY_TOLD(waitFor(u"check box"_s, u"Mark “Bread” as not done"_s, State::Checked));
    VERIFY_TOLD(find(u"list item"_s, u"Errands"_s)->description.startsWith(u"2 of 2 done"));
    press({XK_Down});
    VERIFY_TOLD(waitFor(u"list item"_s, u"Of the train"_s, State::Focused));
    VERIFY_TOLD(find(u"list item"_s, u"Of the train"_s)->is(State::Selected));
    VERIFY_TOLD(!find(u"list item"_s, u"Errands"_s)->is(State::Selected));
    press({XK_Shift_L, XK_F10});
    VERIFY_TOLD(waitFor(u"menu item"_s, u"Open"_s, State::Focused));
    VERIFY_TOLD(find(u"popup menu"_s, u"Note"_s) && find(u"menu item"_s, u"Unpin"_s));
    press({XK_Escape});
    VERIFY_TOLD(waitFor(u"list item"_s, u"Of the train"_s, State::Focused));

    click(u"page tab"_s, u"Prompts"_s);
    VERIFY_TOLD(waitFor(u"list item"_s, u"Say more"_s));
    VERIFY_TOLD(waitFor(u"list item"_s, u"Say less, done"_s));
    VERIFY_TOLD(find(u"check box"_s, u"Mark as not done"_s)->is(State::Checked));
    VERIFY_TOLD(!find(u"check box"_s, u"Mark as done"_s)->is(State::Checked));
    VERIFY_TOLD(find(u"text"_s, u"Write a follow-up prompt…"_s));
}

void TestPanelReader::openNoteIsAnEditableText()
{
    const auto reads = [this](const QString &text, int caret) {
        const std::optional<AccessibleObject> note = find(u"text"_s, u"Of the train"_s);
        // The toolkit uses its own character for the end of a paragraph.
        return note && QString(note->text).replace(QChar::ParagraphSeparator, u'\n') == text
               && note->caret == caret;
    };
    press({XK_Down});
    press({XK_Return});
    VERIFY_TOLD(waitFor(u"text"_s, u"Of the train"_s, State::Focused));
    const std::optional<AccessibleObject> note = find(u"text"_s, u"Of the train"_s);
    VERIFY_TOLD(note->is(State::Editable) && note->is(State::MultiLine));
    VERIFY_TOLD(note->description == u"Done (Ctrl+Enter)" && find(u"label"_s, u"Done (Ctrl+Enter)"_s));
    VERIFY_TOLD(waitUntil([&] { return reads(u"Of the train\nIt leaves at nine."_s, 31); }));
    VERIFY_TOLD(find(u"link"_s, u"from Mousepad"_s));
    press({XK_Control_L, XK_Home});
    m_desktop->keyboard().type(u"So "_s);
    VERIFY_TOLD(waitUntil([&] { return reads(u"So Of the train\nIt leaves at nine."_s, 3); }));
}

void TestPanelReader::hintsSayTheirKeys()
{
    press({XK_Down});
    press({XK_Control_L, XK_BackSpace});
    press({XK_Control_L, XK_BackSpace});
    for (const QString &hint :
         {u"Alt Super N: Save selected text, or write a quick note"_s,
          u"Shift Shift: Save selected text as a prompt"_s, u"[ ] Space: Start a checklist while typing"_s})
        VERIFY_TOLD(waitFor(u"label"_s, hint));
}

void TestPanelReader::nothingThatTakesTheKeyboardIsUnnamed()
{
    QCOMPARE(unnamed(), QByteArray());
    click(u"button menu"_s, u"Menu"_s);
    VERIFY_TOLD(waitFor(u"menu item"_s, u"Quit Vesk"_s));
    QCOMPARE(unnamed(), QByteArray());
    press({XK_Escape});
    VERIFY_TOLD(waitUntil([this] { return !find(u"menu item"_s, u"Quit Vesk"_s); }));
    press({XK_Down});
    press({XK_Return});
    VERIFY_TOLD(waitFor(u"text"_s, u"Of the train"_s, State::Focused));
    QCOMPARE(unnamed(), QByteArray());
    for (const QString &tab : {u"Checklists"_s, u"Prompts"_s}) {
        click(u"page tab"_s, tab);
        VERIFY_TOLD(waitFor(u"list"_s, tab));
        QCOMPARE(unnamed(), QByteArray());
    }
}

void TestPanelReader::languageIsThatOfTheDesktop()
{
    m_vesk.reset();
    // The name that desktops use, even if the system has no locale files for it.
    m_desktop->setVariable(u"LANG"_s, u"de_DE.UTF-8"_s);
    QVERIFY(startVesk());
    togglePanel();
    VERIFY_TOLD(waitFor(u"page tab"_s, u"Notizen"_s));
    VERIFY_TOLD(waitFor(u"list item"_s, u"Errands"_s));
    VERIFY_TOLD(find(u"list item"_s, u"Errands"_s)->description
                == u"1 von 2 erledigt, Vor 3 Std., aus Mousepad");
}

DESKTOP_TEST_MAIN(TestPanelReader)
#include "tst_panelreader.moc"
