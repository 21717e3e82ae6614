// SPDX-License-Identifier: MIT
#include "bustest.h"
#include "fakemenuregistrar.h"
#include "fakestatuswatcher.h"

#include "platform/freedesktop/menubar.h"
#include "platform/freedesktop/statusicon.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// The icon and the menu bar on a separate bus, as a desktop's panels see them.
class StatusIconTest : public BusTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void followsThePlaceForIcons();
    void isFoundAndActivated();
    void menuIsDrawnByTheDesktop();
    void menuIsChosenFrom();
    void windowsMenusHaveMenus();

private:
    void makeIcon()
    {
        m_icon = std::make_unique<StatusIcon>(
            vesk(), StatusIcon::Content{
                        .activated = [this] { m_done.append(u"activate"_s); },
                        .menu = {{.label = u"New_Note"_s, .action = [this] { m_done.append(u"new"_s); }},
                                 {},
                                 {.label = u"Quit"_s, .action = [this] { m_done.append(u"quit"_s); }}}});
    }
    /// The answer to a call from the desktop. The event loop runs, because both ends are in this process.
    [[nodiscard]] static QDBusMessage ask(const QString &path, const QString &interface,
                                          const QString &method, const QVariantList &arguments);
    [[nodiscard]] static QDBusMessage askMenu(const QString &method, const QVariantList &arguments)
    {
        return ask(u"/StatusNotifierItem/Menu"_s, u"com.canonical.dbusmenu"_s, method, arguments);
    }
    [[nodiscard]] static QDBusMessage click(int id)
    {
        return askMenu(u"Event"_s, {id, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
    }

    std::unique_ptr<StatusIcon> m_icon;
    QStringList m_done;
};

void StatusIconTest::cleanup()
{
    m_icon.reset();
    m_done.clear();
}

QDBusMessage StatusIconTest::ask(const QString &path, const QString &interface, const QString &method,
                                 const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(vesk().baseService(), path, interface, method);
    call.setArguments(arguments);
    const QDBusPendingCall pending = other().asyncCall(call);
    (void)QTest::qWaitFor([&pending] { return pending.isFinished(); }, 10000);
    return pending.reply();
}

void StatusIconTest::followsThePlaceForIcons()
{
    makeIcon();
    const QStringList expected{vesk().baseService()};
    for (int round = 0; round < 2; ++round) {
        const FakeStatusWatcher place(other());
        QTRY_COMPARE(place.items(), expected);
    }
    // It exists before the icon.
    m_icon.reset();
    const FakeStatusWatcher place(other());
    makeIcon();
    QTRY_COMPARE(place.items(), expected);
}

void StatusIconTest::isFoundAndActivated()
{
    makeIcon();
    const auto item = u"org.kde.StatusNotifierItem"_s;
    const auto path = u"/StatusNotifierItem"_s;
    const QDBusMessage found = ask(path, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s, {item});
    QCOMPARE(found.type(), QDBusMessage::ReplyMessage);
    const auto all = qdbus_cast<QVariantMap>(found.arguments().value(0));
    QCOMPARE(all.value(u"Status"_s).toString(), u"Active"_s);
    QCOMPARE(all.value(u"IconName"_s).toString(), u"org.vesk.Vesk"_s);
    QCOMPARE(all.value(u"Menu"_s).value<QDBusObjectPath>().path(), u"/StatusNotifierItem/Menu"_s);
    QCOMPARE(ask(path, item, u"Activate"_s, {7, 9}).type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(m_done, QStringList{u"activate"_s});
}

void StatusIconTest::menuIsDrawnByTheDesktop()
{
    makeIcon();
    const QDBusMessage answer = askMenu(u"GetLayout"_s, {0, -1, QStringList()});
    QCOMPARE(answer.signature(), u"u(ia{sv}av)"_s);
    const auto layout = qdbus_cast<DBusMenuLayout>(answer.arguments().at(1));
    QStringList lines;
    for (const QVariant &child : layout.children) {
        const auto line = qdbus_cast<DBusMenuLayout>(child);
        lines.append(u"%1:%2%3"_s.arg(QString::number(line.id), line.properties.value(u"label"_s).toString(),
                                      line.properties.value(u"type"_s).toString()));
    }
    QCOMPARE(lines, (QStringList{u"1:New__Note"_s, u"2:separator"_s, u"3:Quit"_s}));
    const QDBusMessage group =
        askMenu(u"GetGroupProperties"_s, {QVariant::fromValue(QList<int>{1, 2, 9}), QStringList{u"label"_s}});
    QCOMPARE(group.signature(), u"a(ia{sv})"_s);
    const auto items = qdbus_cast<QList<DBusMenuItem>>(group.arguments().value(0));
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0).properties, (QVariantMap{{u"label"_s, u"New__Note"_s}}));
    QCOMPARE(items.at(1).properties, QVariantMap());
}

void StatusIconTest::menuIsChosenFrom()
{
    makeIcon();
    for (const int id : {-1, 2, 99, 3})
        QCOMPARE(click(id).type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(m_done, QStringList{u"quit"_s});
    // Some desktops send events in groups, including pointer events.
    const QList<DBusMenuEvent> events{
        {.id = 1, .name = u"hovered"_s, .data = QDBusVariant(0), .timestamp = 0},
        {.id = 1, .name = u"clicked"_s, .data = QDBusVariant(0), .timestamp = 0},
        {.id = 44, .name = u"clicked"_s, .data = QDBusVariant(0), .timestamp = 0}};
    const QDBusMessage answer = askMenu(u"EventGroup"_s, {QVariant::fromValue(events)});
    QCOMPARE(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>{44});
    QTRY_COMPARE(m_done, (QStringList{u"quit"_s, u"new"_s}));
}

void StatusIconTest::windowsMenusHaveMenus()
{
    const MenuBar bar(vesk(), 77,
                      {{.label = u"File"_s,
                        .action = {},
                        .children = {{.label = u"New"_s,
                                      .action = [this] { m_done.append(u"new"_s); },
                                      .keys = QKeySequence(u"Ctrl+Shift+N"_s)}}},
                       {.label = u"Format"_s, .action = {}}});
    for (int round = 0; round < 2; ++round) {
        const FakeMenuRegistrar place(other());
        QTRY_COMPARE(place.windows().value(77).second, u"/MenuBar"_s);
    }
    const auto children = [](const QVariant &line) { return qdbus_cast<DBusMenuLayout>(line).children; };
    const auto layout = [&children](int id, int depth) {
        return children(
            ask(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetLayout"_s, {id, depth, QStringList()})
                .arguments()
                .value(1));
    };
    QCOMPARE(layout(0, -1).size(), 2);
    QCOMPARE(layout(3, -1).size(), 0);
    QCOMPARE(children(layout(0, 1).constFirst()).size(), 0);
    const auto line = qdbus_cast<DBusMenuLayout>(children(layout(0, 2).constFirst()).value(0));
    QCOMPARE(line.id, 2);
    QCOMPARE(line.properties.value(u"label"_s).toString(), u"New"_s);
    QCOMPARE(qdbus_cast<QList<QStringList>>(line.properties.value(u"shortcut"_s)),
             (QList<QStringList>{{u"Control"_s, u"Shift"_s, u"N"_s}}));
}

QTEST_GUILESS_MAIN(StatusIconTest)
#include "tst_statusicon.moc"
