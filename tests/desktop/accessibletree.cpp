// SPDX-License-Identifier: MIT
#include "desktop/accessibletree.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int kCallMilliseconds = 1000;
/// More objects than any window of the tests has; a tree that closes on itself ends here.
constexpr qsizetype kMostObjects = 2000;

const auto kSessionName = u"vesk-test-a11y-session"_s;
const auto kBusName = u"vesk-test-a11y"_s;
const auto kAccessible = u"org.a11y.atspi.Accessible"_s;

QString accessibilityAddress(const QString &sessionAddress)
{
    const QDBusConnection session = QDBusConnection::connectToBus(sessionAddress, kSessionName);
    const QDBusReply<QString> address =
        session.call(QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s,
                                                    u"GetAddress"_s),
                     QDBus::Block, kCallMilliseconds);
    QDBusConnection::disconnectFromBus(kSessionName);
    return address.value();
}

} // namespace

AccessibleTree::AccessibleTree(const QString &busAddress)
    : m_bus(QDBusConnection::connectToBus(accessibilityAddress(busAddress), kBusName))
{
}

AccessibleTree::~AccessibleTree()
{
    QDBusConnection::disconnectFromBus(kBusName);
}

QStringList AccessibleTree::names(qint64 pid) const
{
    QList<Object> objects;
    for (const Object &application :
         children({u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s})) {
        if (processOf(application.service) == pid)
            objects.append(application);
    }
    QStringList names;
    for (qsizetype next = 0; next < objects.size() && next < kMostObjects; ++next) {
        const Object object = objects.at(next);
        names.append(name(object));
        objects.append(children(object));
    }
    return names;
}

QList<AccessibleTree::Object> AccessibleTree::children(const Object &object) const
{
    const QDBusMessage reply =
        m_bus.call(QDBusMessage::createMethodCall(object.service, object.path, kAccessible, u"GetChildren"_s),
                   QDBus::Block, kCallMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    QList<Object> children;
    const auto list = reply.arguments().constFirst().value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Object child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        children.append(child);
    }
    list.endArray();
    return children;
}

QString AccessibleTree::name(const Object &object) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path,
                                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call.setArguments({kAccessible, u"Name"_s});
    const QDBusReply<QVariant> reply = m_bus.call(call, QDBus::Block, kCallMilliseconds);
    return reply.value().toString();
}

qint64 AccessibleTree::processOf(const QString &service) const
{
    return m_bus.interface() != nullptr ? qint64(m_bus.interface()->servicePid(service).value()) : 0;
}

} // namespace vesk
