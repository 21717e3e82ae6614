// SPDX-License-Identifier: MIT
#include "desktop/accessibletree.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int kCallMilliseconds = 1000;
/// More objects than any window of the tests has; a tree that closes on itself ends here.
constexpr qsizetype kMostObjects = 2000;

const auto kSessionName = u"vesk-test-a11y-session"_s;
const auto kBusName = u"vesk-test-a11y"_s;
const auto kAccessible = u"org.a11y.atspi.Accessible"_s;
const auto kText = u"org.a11y.atspi.Text"_s;

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
    QStringList names;
    for (const Object &object : all(pid))
        names.append(property(object, kAccessible, u"Name"_s).toString());
    return names;
}

QList<AccessibleObject> AccessibleTree::objects(qint64 pid) const
{
    QList<AccessibleObject> objects;
    for (const Object &object : all(pid))
        objects.append(describe(object));
    return objects;
}

AccessibleObject AccessibleTree::describe(const Object &object) const
{
    AccessibleObject described{.name = property(object, kAccessible, u"Name"_s).toString(),
                               .description = property(object, kAccessible, u"Description"_s).toString(),
                               .role = ask(object, kAccessible, u"GetRoleName"_s).toString(),
                               .states = states(object),
                               .area = area(object)};
    if (described.is(AccessibleObject::State::Editable)) {
        described.text = ask(object, kText, u"GetText"_s, {0, -1}).toString();
        described.caret = property(object, kText, u"CaretOffset"_s).toInt();
    }
    return described;
}

QList<AccessibleTree::Object> AccessibleTree::all(qint64 pid) const
{
    QList<Object> objects;
    for (const Object &application :
         children({u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s})) {
        if (processOf(application.service) == pid)
            objects.append(application);
    }
    for (qsizetype next = 0; next < objects.size() && next < kMostObjects; ++next)
        objects.append(children(objects.at(next)));
    return objects;
}

QList<AccessibleTree::Object> AccessibleTree::children(const Object &object) const
{
    const QVariant answer = ask(object, kAccessible, u"GetChildren"_s);
    if (!answer.isValid())
        return {};
    QList<Object> children;
    const auto list = answer.value<QDBusArgument>();
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

QVariant AccessibleTree::property(const Object &object, const QString &interface, const QString &name) const
{
    const QVariant value = ask(object, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {interface, name});
    return value.value<QDBusVariant>().variant();
}

QVariant AccessibleTree::ask(const Object &object, const QString &interface, const QString &method,
                             const QVariantList &arguments) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    call.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, kCallMilliseconds);
    const bool isAnswered = reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty();
    return isAnswered ? reply.arguments().constFirst() : QVariant();
}

quint64 AccessibleTree::states(const Object &object) const
{
    const QVariant answer = ask(object, kAccessible, u"GetState"_s);
    if (!answer.isValid())
        return 0;
    QList<quint32> halves;
    answer.value<QDBusArgument>() >> halves;
    return halves.size() == 2 ? quint64{halves.at(1)} << 32 | halves.at(0) : 0;
}

QRect AccessibleTree::area(const Object &object) const
{
    constexpr quint32 kOnScreen = 0;
    const QVariant answer = ask(object, u"org.a11y.atspi.Component"_s, u"GetExtents"_s, {kOnScreen});
    QRect area;
    if (answer.isValid())
        answer.value<QDBusArgument>() >> area;
    return area;
}

qint64 AccessibleTree::processOf(const QString &service) const
{
    return m_bus.interface() != nullptr ? qint64(m_bus.interface()->servicePid(service).value()) : 0;
}

} // namespace vesk
