// SPDX-License-Identifier: MIT
#include "../panel/paneltest.h"
#include "app/menucommands.h"
#include "editor/notetextview.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The keys of menu commands in the real panel.
class MenuCommandsTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formatWorksFromBesideTheText();
    void formatNeedsAnOpenNoteInSight();
    void newNoteIsTakenFromAnywhere();

private:
    void openNote()
    {
        model().openNote()->open(*m_note);
        QTRY_VERIFY(model().editor()->textView());
        model().editor()->forceFocus();
    }
    Note *m_note = nullptr;
};

void MenuCommandsTest::init()
{
    PanelTest::init();
    m_note = &addNote(u"milk"_s);
    show();
}

void MenuCommandsTest::formatWorksFromBesideTheText()
{
    const MenuCommands commands(window(), *model().editor());
    openNote();
    // Back to a button of the panel; moving on from the note would reach a field, which closes it.
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(model().editor()->textView() && !model().keyboard()->isEditing());
    press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(m_note->text(), u"\u2610 milk"_s);
    QVERIFY2(model().keyboard()->isEditing(), "The text has the keyboard.");
}

void MenuCommandsTest::formatNeedsAnOpenNoteInSight()
{
    MenuCommands commands(window(), *model().editor());
    const auto pressAll = [this] {
        for (const Qt::Key key : {Qt::Key_L, Qt::Key_8, Qt::Key_H})
            press(key, Qt::ControlModifier | Qt::ShiftModifier);
    };
    press(Qt::Key_Down);
    pressAll();
    QCOMPARE(m_note->text(), u"milk"_s);
    openNote();
    model().guide()->show();
    pressAll();
    commands.choose(MenuCommands::Item::Heading);
    QCOMPARE(m_note->text(), u"milk"_s);
}

void MenuCommandsTest::newNoteIsTakenFromAnywhere()
{
    const MenuCommands commands(window(), *model().editor());
    QSignalSpy chosen(&commands, &MenuCommands::chosen);
    openNote();
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().value<Command>(), Command::Write);
    // Another window of the program.
    QWindow other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTest::keyClick(&other, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(m_note->text(), u"milk"_s);
}

QTEST_MAIN(MenuCommandsTest)
#include "tst_menucommands.moc"
