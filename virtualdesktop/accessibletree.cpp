// SPDX-License-Identifier: MIT
#include "virtualdesktop/accessibletree.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// More objects than any window in the tests has; stops at a tree that contains itself.
constexpr qsizetype kMostObjects = 2000;

const auto kAccessible = u"org.a11y.atspi.Accessible"_s;
const auto kText = u"org.a11y.atspi.Text"_s;

} // namespace

QStringList AccessibleTree::names(qint64 pid) const
{
    QStringList names;
    for (const Object &object : all(pid))
        names.append(m_bus.nameOf(object));
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
    AccessibleObject described{.name = m_bus.nameOf(object),
                               .description =
                                   m_bus.property(object, kAccessible, u"Description"_s).toString(),
                               .role = m_bus.ask(object, kAccessible, u"GetRoleName"_s).toString(),
                               .states = states(object),
                               .area = area(object)};
    if (described.is(AccessibleObject::State::Editable)) {
        described.text = m_bus.ask(object, kText, u"GetText"_s, {0, -1}).toString();
        described.caret = m_bus.property(object, kText, u"CaretOffset"_s).toInt();
    }
    return described;
}

QList<AccessibleTree::Object> AccessibleTree::all(qint64 pid) const
{
    QList<Object> objects;
    for (const Object &application :
         children({u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s})) {
        if (m_bus.processOf(application.service) == pid)
            objects.append(application);
    }
    for (qsizetype next = 0; next < objects.size() && next < kMostObjects; ++next)
        objects.append(children(objects.at(next)));
    return objects;
}

QList<AccessibleTree::Object> AccessibleTree::children(const Object &object) const
{
    const QVariant answer = m_bus.ask(object, kAccessible, u"GetChildren"_s);
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

quint64 AccessibleTree::states(const Object &object) const
{
    const QVariant answer = m_bus.ask(object, kAccessible, u"GetState"_s);
    if (!answer.isValid())
        return 0;
    QList<quint32> halves;
    answer.value<QDBusArgument>() >> halves;
    return halves.size() == 2 ? quint64{halves.at(1)} << 32 | halves.at(0) : 0;
}

QRect AccessibleTree::area(const Object &object) const
{
    constexpr quint32 kOnScreen = 0;
    const QVariant answer = m_bus.ask(object, u"org.a11y.atspi.Component"_s, u"GetExtents"_s, {kOnScreen});
    QRect area;
    if (answer.isValid())
        answer.value<QDBusArgument>() >> area;
    return area;
}

} // namespace vesk
