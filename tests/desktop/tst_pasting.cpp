// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"
#include "virtualdesktop/clipboardholder.h"
#include "virtualdesktop/pointer.h"
#include "virtualdesktop/selectionthread.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Pasting into Vesk from programs that are slow or hang, and what other programs do to the clipboard.
class TestPasting : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void hungProgramDoesNotStopVesk();
    void selectionOfVesksOwnIsPasted();
    void whatIsTypedFollowsASlowPaste();
    void takenOverClipboardIsNoFreshCopy();

private:
    /// Opens the panel with the focus in the composer.
    [[nodiscard]] bool openComposer();
    void middleClickComposer();

    QRect m_panel;
};

bool TestPasting::openComposer()
{
    press({XK_Control_L, XK_n});
    const std::optional<Window> panel = m_desktop->windows().waitFocused(kPanel, kBound);
    m_panel = panel ? panel->geometry : QRect();
    return panel.has_value();
}

void TestPasting::middleClickComposer()
{
    m_desktop->pointer().middleClick(QPoint(m_panel.center().x(), m_panel.bottom() - 34));
}

/// Its selections are pasted with keys and the middle button, and the user continues typing meanwhile.
void TestPasting::hungProgramDoesNotStopVesk()
{
    const auto silence = [](DisplayConnection &, const xcb_generic_event_t &) {};
    const auto primary = SelectionThread::own(m_desktop->displayName(), "PRIMARY", silence);
    const auto clipboard = SelectionThread::own(m_desktop->displayName(), "CLIPBOARD", silence);
    QVERIFY(primary && clipboard);
    VERIFY_ON(*m_desktop, openComposer());
    middleClickComposer();
    m_desktop->keyboard().type(u"one"_s);
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, waitNotes({u"one"_s}));
    m_desktop->keyboard().tap({XK_Control_L, XK_v});
    m_desktop->keyboard().tap({XK_Shift_L, XK_Insert});
    m_desktop->keyboard().type(u"two"_s);
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, waitNotes({u"one"_s, u"two"_s}));
}

/// Vesk must not wait for itself either.
void TestPasting::selectionOfVesksOwnIsPasted()
{
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    m_desktop->keyboard().type(u"word"_s);
    m_desktop->keyboard().tap({XK_Control_L, XK_a});
    const auto waitWord = [this](const char *selection) {
        return m_desktop->display().waitUntil(kBound, [this, selection] {
            return m_desktop->display().readSelection(selection, 1s) == u"word"_s;
        });
    };
    VERIFY_ON(*m_desktop, waitWord("PRIMARY"));
    m_desktop->keyboard().tap({XK_Control_L, XK_c});
    // The hot key below takes another path and could overtake this key.
    VERIFY_ON(*m_desktop, waitWord("CLIPBOARD"));
    m_desktop->keyboard().tap({XK_Escape});
    VERIFY_ON(*m_desktop, openComposer());
    middleClickComposer();
    m_desktop->keyboard().tap({XK_Control_L, XK_v});
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, waitNotes({u"wordword"_s}));
}

void TestPasting::whatIsTypedFollowsASlowPaste()
{
    const auto answerSlowly = [](DisplayConnection &display, const xcb_generic_event_t &event) {
        const auto request = SelectionThread::requestIn(event);
        if (!request)
            return;
        std::this_thread::sleep_for(60ms);
        const xcb_atom_t text = display.atom("UTF8_STRING");
        const bool isList = request->target == display.atom("TARGETS");
        if (isList)
            SelectionThread::writeAtoms(display, *request, {text});
        else
            SelectionThread::write(display, *request, text, 8, "pasted");
        SelectionThread::notify(display, *request, true);
    };
    const auto clipboard = SelectionThread::own(m_desktop->displayName(), "CLIPBOARD", answerSlowly);
    QVERIFY(clipboard);
    VERIFY_ON(*m_desktop, openComposer());
    m_desktop->keyboard().tap({XK_Control_L, XK_v});
    m_desktop->keyboard().type(u" and typed"_s);
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, waitNotes({u"pasted and typed"_s}));
}

/// A clipboard manager claims what the user copied long ago, and claims what the user has just copied again.
void TestPasting::takenOverClipboardIsNoFreshCopy()
{
    constexpr auto kStale = 9s;
    const auto copy = [this](int line) {
        if (!m_editor->selectLine(line))
            return false;
        m_desktop->keyboard().tap({XK_Control_L, XK_c});
        return m_desktop->display().waitUntil(kBound, [this, line] {
            return m_desktop->display().readSelection("CLIPBOARD", 1s) == m_lines.at(line);
        });
    };
    VERIFY_ON(*m_desktop, copy(0));
    VERIFY_ON(*m_desktop, m_editor->deselect());
    QTest::qWait(int(std::chrono::milliseconds(kStale).count()));
    auto manager = ClipboardHolder::hold(m_desktop->displayName(), {{"UTF8_STRING", m_lines.at(0).toUtf8()}});
    QVERIFY(manager);
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    QVERIFY(m_desktop->notes().texts().isEmpty());
    m_desktop->keyboard().tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));

    QTest::qWait(int(kCaptureGate.count()));
    VERIFY_ON(*m_desktop, copy(1));
    manager = ClipboardHolder::hold(m_desktop->displayName(), {{"UTF8_STRING", m_lines.at(1).toUtf8()}});
    VERIFY_ON(*m_desktop, m_editor->deselect());
    capture();
    VERIFY_ON(*m_desktop, waitNotes({m_lines.at(1)}));
}

DESKTOP_TEST_MAIN(TestPasting)
#include "tst_pasting.moc"
