// SPDX-License-Identifier: MIT
#include "desktop/announcements.h"
#include "desktop/editortest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Capturing and its notice do not disturb anything else on the desktop, and yet are noticeable.
class TestNotices : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void isReadOut();
    void standsAboveAFullScreenWindow();
    void letsClicksThrough();
    void dialogStaysAsItWas();
    void openMenuStaysOpen();

private:
    /// Whether the window is above all others at its centre.
    [[nodiscard]] bool isOnTop(const Window &window) const;
};

bool TestNotices::isOnTop(const Window &window) const
{
    const DisplayConnection &display = m_desktop->display();
    const Reply<xcb_query_tree_reply_t> tree{
        xcb_query_tree_reply(display.xcb(), xcb_query_tree(display.xcb(), display.root()), nullptr)};
    if (!tree)
        return false;
    // From bottom to top.
    const xcb_window_t *all = xcb_query_tree_children(tree.get());
    xcb_window_t top = XCB_WINDOW_NONE;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const Reply<xcb_get_geometry_reply_t> place{
            xcb_get_geometry_reply(display.xcb(), xcb_get_geometry(display.xcb(), all[i]), nullptr)};
        const Reply<xcb_get_window_attributes_reply_t> state{xcb_get_window_attributes_reply(
            display.xcb(), xcb_get_window_attributes(display.xcb(), all[i]), nullptr)};
        if (place && state && state->map_state == XCB_MAP_STATE_VIEWABLE
            && state->_class != XCB_WINDOW_CLASS_INPUT_ONLY
            && QRect(place->x, place->y, place->width, place->height).contains(window.geometry.center()))
            top = all[i];
    }
    return top == window.id;
}

void TestNotices::isReadOut()
{
    const Announcements announcements(m_desktop->busAddress());
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    QTRY_COMPARE_WITH_TIMEOUT(announcements.heard(), QStringList{kSaved}, int(10'000));
    // A second notice while the first is still shown, and later ones, are announced too.
    QTest::qWait(int(kCaptureGate.count()));
    capture();
    QTRY_COMPARE_WITH_TIMEOUT(announcements.heard(), (QStringList{kSaved, kAlready}), int(10'000));
}

void TestNotices::standsAboveAFullScreenWindow()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kSaved, kBound));
    QTest::qWait(int(kCaptureGate.count()));

    // Raised after the notice's window was created.
    m_desktop->keyboard().tap({XK_F11});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        const std::optional<Window> editor = m_desktop->windows().findViewableOf(m_editor->process().pid());
        return editor && editor->geometry.size() == m_desktop->display().size();
    }));
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    capture();
    const std::optional<Window> notice = m_desktop->windows().waitViewable(kSaved, kBound);
    VERIFY_ON(*m_desktop, notice);
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(1s, [&] { return isOnTop(*notice); }));
    VERIFY_ON(*m_desktop, m_desktop->windows().isActive(m_editor->window()));
}

void TestNotices::letsClicksThrough()
{
    // A window of the editor's size, below the position of the notice.
    m_desktop->keyboard().tap({XK_F11});
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    const std::optional<Window> notice = m_desktop->windows().waitViewable(kSaved, kBound);
    VERIFY_ON(*m_desktop, notice);
    m_desktop->pointer().click(notice->geometry.center());
    // The click has reached the text, where it clears the selection.
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(
                              kBound, [&] { return !m_desktop->display().readSelection("PRIMARY", 500ms); }));
    QVERIFY(m_desktop->windows().findViewable(kSaved));
}

void TestNotices::dialogStaysAsItWas()
{
    m_desktop->keyboard().tap({XK_Control_L, XK_Shift_L, XK_s});
    const std::optional<Window> dialog =
        m_desktop->windows().waitViewableOf(m_editor->process().pid(), u"Save As"_s, kBound);
    VERIFY_ON(*m_desktop, dialog);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(*dialog, kBound));
    // A file is being renamed: a new name is typed and selected.
    m_desktop->keyboard().tap({XK_Control_L, XK_a});
    m_desktop->keyboard().type(u"pears"_s);
    m_desktop->keyboard().tap({XK_Shift_L, XK_Home});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        return m_desktop->display().readSelection("PRIMARY", 500ms) == u"pears"_s;
    }));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    const NotesFile::Row note = m_desktop->notes().notes().value_or(QList<NotesFile::Row>()).value(0);
    QCOMPARE(note.value(u"text"_s), u"pears"_s);
    QCOMPARE(note.value(u"sourceBundleID"_s), u"org.xfce.mousepad"_s);
    QCOMPARE(note.value(u"sourceTitle"_s), dialog->title);
    VERIFY_ON(*m_desktop, m_desktop->windows().isActive(*dialog));
    QCOMPARE(m_desktop->display().readSelection("PRIMARY", kBound), u"pears"_s);
    // Still being renamed, at the same position.
    m_desktop->keyboard().type(u"figs"_s);
    m_desktop->keyboard().tap({XK_Shift_L, XK_Home});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        return m_desktop->display().readSelection("PRIMARY", 500ms) == u"figs"_s;
    }));
}

void TestNotices::openMenuStaysOpen()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    m_desktop->keyboard().tap({XK_Alt_L, XK_e});
    const auto findMenu = [this] {
        return m_desktop->windows().findViewableIf([this](const Window &window) {
            return window.pid == m_editor->process().pid() && window.id != m_editor->window().id;
        });
    };
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] { return findMenu().has_value(); }));
    const std::optional<Window> menu = findMenu();
    capture();
    // Whether or not the key is received while a menu has grabbed the keyboard, the menu is not disturbed.
    QTest::qWait(int(kCaptureGate.count()));
    VERIFY_ON(*m_desktop, findMenu() && findMenu()->id == menu->id);
    QVERIFY(!m_desktop->windows().findViewable(kQuickNote));
    m_desktop->keyboard().tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] { return !findMenu(); }));
    QVERIFY(isEditorUntouched());
}

DESKTOP_TEST_MAIN(TestNotices)
#include "tst_notices.moc"
