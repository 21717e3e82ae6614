// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// The way of a text from another application into the store and onto the panel.
class TestCapturePath : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectionBecomesANoteWithItsSource();
    void heldKeyCapturesOnceAndTypesNothing();
    void escapeGivesTheKeyboardBack();
};

void TestCapturePath::selectionBecomesANoteWithItsSource()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));

    // The notice says that the note is durable, so the file has it now, not a little later.
    const auto notes = m_desktop->notes().notes();
    QVERIFY(notes);
    QCOMPARE(notes->size(), 1);
    const NotesFile::Row note = notes->constFirst();
    QCOMPARE(note.value(u"text"_s), m_lines.at(1));
    QCOMPARE(note.value(u"sourceApp"_s), u"Mousepad"_s);
    QCOMPARE(note.value(u"sourceBundleID"_s), u"org.xfce.mousepad"_s);
    QCOMPARE(note.value(u"sourceTitle"_s), m_editor->window().title);
    QVERIFY(note.value(u"sourceURL"_s).isEmpty());
    const qint64 createdAt = note.value(u"createdAt"_s).toLongLong() / 1000;
    QVERIFY(qAbs(createdAt - QDateTime::currentMSecsSinceEpoch()) < 60'000);

    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kSaved, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
}

void TestCapturePath::heldKeyCapturesOnceAndTypesNothing()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    Keyboard &keyboard = m_desktop->keyboard();
    for (const xcb_keysym_t key : {XK_Super_L, XK_Alt_L, XK_n})
        keyboard.press(key);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    // Held past the gate: a repeated key that counted as a press would find the same text again.
    const bool isCapturedAgain =
        m_desktop->windows().waitViewable(kAlready, kCaptureGate + 400ms).has_value();
    for (const xcb_keysym_t key : {XK_n, XK_Alt_L, XK_Super_L})
        keyboard.release(key);

    QVERIFY(!isCapturedAgain);
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
}

void TestCapturePath::escapeGivesTheKeyboardBack()
{
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    m_desktop->keyboard().tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    // Its own word for it: the editor has the keyboard again, and no key of the panel's went to it.
    QVERIFY(isEditorUntouched());
}

int main(int argc, char **argv)
{
    return runDesktopTest<TestCapturePath>(argc, argv);
}

#include "tst_capturepath.moc"
