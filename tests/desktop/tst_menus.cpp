// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "platform/fakemenuregistrar.h"
#include "platform/fakestatuswatcher.h"
#include "virtualdesktop/accessibletree.h"
#include "virtualdesktop/texteditor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

const auto kBus = u"vesk-test-menus"_s;

} // namespace

/// The guide, the menus and their keys, and the status icon of the real program.
class MenusTest : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { startDesktop(); }
    void cleanup();
    void guideGreetsOnlyOnce();
    void guideStaysForTheAnswer();
    void formatsByTheKeyWhateverTheLayout_data();
    void formatsByTheKeyWhateverTheLayout();
    void iconsMenuOpensTheBox();
    void menuBarFormatsTheOpenNote();

private:
    /// Whether the panel has the focus now.
    [[nodiscard]] bool openPanel()
    {
        return runToEnd(VirtualDesktop::veskProgram(), {u"toggle"_s})
               && m_desktop->windows().waitFocused(kPanel, kBound);
    }
    /// Whether Vesk exposes an object of this name to a screen reader.
    [[nodiscard]] bool tells(const QString &name)
    {
        return AccessibleTree(m_desktop->busAddress()).names(m_vesk->pid()).contains(name);
    }
    [[nodiscard]] bool isGuideShown() { return tells(u"Welcome to Vesk"_s); }
    /// Triggers a menu entry as the desktop does.
    [[nodiscard]] static bool choose(const QString &service, const QString &path, int line)
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(service, path, u"com.canonical.dbusmenu"_s, u"Event"_s);
        call.setArguments({line, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
        return QDBusConnection(kBus).call(call).type() == QDBusMessage::ReplyMessage;
    }
    void type(const QList<xcb_keysym_t> &keys) { m_desktop->keyboard().tap(keys, kFinger); }
};

void MenusTest::cleanup()
{
    QDBusConnection::disconnectFromBus(kBus);
    VeskTest::cleanup();
}

void MenusTest::guideGreetsOnlyOnce()
{
    QVERIFY(startVesk());
    QVERIFY(openPanel());
    QTRY_VERIFY_WITH_TIMEOUT(isGuideShown(), 10000);
    type({XK_Escape});
    QTRY_VERIFY_WITH_TIMEOUT(!isGuideShown(), 10000);
    VERIFY_ON(*m_desktop, m_desktop->windows().findViewable(kPanel));
    QVERIFY(m_vesk->quit());
    QVERIFY(m_desktop->readFile(u"config/Vesk/Vesk.conf"_s).contains(u"hasSeenGuide=true"_s));

    QVERIFY(startVesk());
    QVERIFY(openPanel());
    QTRY_VERIFY_WITH_TIMEOUT(tells(u"Menu"_s), 10000);
    QVERIFY(!isGuideShown());
}

void MenusTest::guideStaysForTheAnswer()
{
    // The application that would get the focus after the question closes.
    const std::unique_ptr<TextEditor> editor = TextEditor::open(*m_desktop, {u"line"_s});
    VERIFY_ON(*m_desktop, editor);
    QVERIFY(startVesk());
    QVERIFY(openPanel());
    QTRY_VERIFY_WITH_TIMEOUT(tells(u"Needs Accessibility access"_s), 10000);
    type({XK_Tab});
    type({XK_Return});
    const auto title = u"Vesk: Let Vesk read what you select?"_s;
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(title, kBound));
    type({XK_Tab});
    type({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(title, kBound));
    QTRY_VERIFY_WITH_TIMEOUT(tells(u"Accessibility access allowed"_s), 10000);
    const std::optional<Window> panel = m_desktop->windows().findViewable(kPanel);
    VERIFY_ON(*m_desktop, panel && m_desktop->windows().waitFocused(*panel, kBound));
}

void MenusTest::formatsByTheKeyWhateverTheLayout_data()
{
    QTest::addColumn<QString>("layout");
    for (const char *layout : {"us", "de", "fr", "ru,us"})
        QTest::newRow(layout) << QString::fromLatin1(layout);
}

void MenusTest::formatsByTheKeyWhateverTheLayout()
{
    QFETCH(QString, layout);
    QVERIFY(m_desktop->prepareUser());
    // The test continues to press the keys of the previous layout.
    QVERIFY(runToEnd(u"setxkbmap"_s, {layout}));
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"add"_s, u"milk"_s}));
    QVERIFY(startVesk());
    QVERIFY(openPanel());
    const QList<std::pair<xcb_keysym_t, QString>> steps{
        {XK_8, u"\u2022 milk"_s}, {XK_h, u"# milk"_s}, {XK_l, u"\u2610 milk"_s}, {XK_l, u"milk"_s}};
    // Deliver the first keys all at once: the command must not overtake those that open its note.
    m_vesk->signal(SIGSTOP);
    type({XK_Down});
    type({XK_Return});
    for (const auto &[key, text] : steps) {
        type({XK_Control_L, XK_Shift_L, key});
        m_vesk->signal(SIGCONT);
        VERIFY_ON(*m_desktop, waitNotes(QStringList{text}));
    }
}

void MenusTest::iconsMenuOpensTheBox()
{
    QVERIFY(m_desktop->prepareUser());
    const FakeStatusWatcher place(QDBusConnection::connectToBus(m_desktop->busAddress(), kBus));
    QVERIFY(startVesk());
    QTRY_COMPARE_WITH_TIMEOUT(place.items().size(), 1, 10000);
    const QString item = place.items().first();
    const auto path = u"/StatusNotifierItem/Menu"_s;
    QVERIFY(choose(item, path, 4));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kQuickChecklist, kBound));
    QVERIFY(choose(item, path, 1));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    QVERIFY(choose(item, path, 6));
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_vesk->exitCode(), 0);
}

void MenusTest::menuBarFormatsTheOpenNote()
{
    QVERIFY(m_desktop->prepareUser());
    const FakeMenuRegistrar place(QDBusConnection::connectToBus(m_desktop->busAddress(), kBus));
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"add"_s, u"milk"_s}));
    QVERIFY(startVesk());
    QVERIFY(openPanel());
    const std::optional<Window> panel = m_desktop->windows().findViewable(kPanel);
    VERIFY_ON(*m_desktop, panel);
    QTRY_VERIFY_WITH_TIMEOUT(place.windows().contains(panel->id), 10000);
    const auto [service, path] = place.windows().value(panel->id);
    type({XK_Down});
    type({XK_Return});
    type({XK_y});
    VERIFY_ON(*m_desktop, waitNotes({u"milky"_s}));
    QVERIFY(choose(service, path, 6));
    VERIFY_ON(*m_desktop, waitNotes({u"\u2610 milky"_s}));
    QVERIFY(choose(service, path, 3));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kQuickNote, kBound));
}

DESKTOP_TEST_MAIN(MenusTest)
#include "tst_menus.moc"
