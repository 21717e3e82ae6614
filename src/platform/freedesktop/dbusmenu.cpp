// SPDX-License-Identifier: MIT
#include "platform/freedesktop/dbusmenu.h"

#include <QDBusMetaType>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr uint kRevision = 1;

/// Key combinations in the protocol's notation: one list of keys for each.
QList<QStringList> shortcuts(const QKeySequence &keys)
{
    QStringList names = keys.toString(QKeySequence::PortableText).split(u'+');
    names.replaceInStrings(u"Ctrl"_s, u"Control"_s);
    return {names};
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItem &item)
{
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItem &item)
{
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties << layout.children;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties >> layout.children;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event)
{
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

DBusMenu::DBusMenu(const QList<DBusMenuEntry> &entries, QObject *parent)
    : QDBusAbstractAdaptor(parent)
{
    addLines(entries, 0);
    qDBusRegisterMetaType<DBusMenuItem>();
    qDBusRegisterMetaType<QList<DBusMenuItem>>();
    qDBusRegisterMetaType<DBusMenuLayout>();
    qDBusRegisterMetaType<DBusMenuEvent>();
    qDBusRegisterMetaType<QList<DBusMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
    qDBusRegisterMetaType<QList<QStringList>>();
}

void DBusMenu::addLines(const QList<DBusMenuEntry> &entries, int parent)
{
    for (const DBusMenuEntry &entry : entries) {
        m_lines.append({.entry = entry, .parent = parent});
        addLines(entry.children, static_cast<int>(m_lines.size()));
    }
}

QString DBusMenu::textDirection()
{
    return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

QVariantMap DBusMenu::properties(int id, const QStringList &names) const
{
    QVariantMap all;
    const DBusMenuEntry entry = id == 0 ? DBusMenuEntry() : m_lines.at(id - 1).entry;
    if (id == 0 || !entry.children.isEmpty())
        all.insert(u"children-display"_s, u"submenu"_s);
    else if (entry.label.isEmpty())
        all.insert(u"type"_s, u"separator"_s);
    // In this protocol a single underscore marks the entry's mnemonic.
    if (!entry.label.isEmpty())
        all.insert(u"label"_s, QString(entry.label).replace(u'_', u"__"_s));
    if (!entry.keys.isEmpty())
        all.insert(u"shortcut"_s, QVariant::fromValue(shortcuts(entry.keys)));
    if (names.isEmpty())
        return all;
    all.removeIf([&names](const QVariantMap::iterator &it) { return !names.contains(it.key()); });
    return all;
}

DBusMenuLayout DBusMenu::layout(int id, int depth, const QStringList &names) const
{
    DBusMenuLayout layout{.id = id, .properties = properties(id, names), .children = {}};
    for (int child = id + 1; depth != 0 && child <= m_lines.size(); ++child) {
        if (m_lines.at(child - 1).parent == id)
            layout.children.append(QVariant::fromValue(this->layout(child, depth - 1, names)));
    }
    return layout;
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                         DBusMenuLayout &layout) const
{
    layout.id = parentId;
    if (parentId == 0 || hasLine(parentId))
        layout = this->layout(parentId, recursionDepth, propertyNames);
    return kRevision;
}

QList<DBusMenuItem> DBusMenu::GetGroupProperties(const QList<int> &ids,
                                                 const QStringList &propertyNames) const
{
    QList<DBusMenuItem> items;
    // An empty list of identifiers requests all items.
    for (int id = 0; id <= m_lines.size(); ++id) {
        if (ids.isEmpty() || ids.contains(id))
            items.append({.id = id, .properties = properties(id, propertyNames)});
    }
    return items;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString &name) const
{
    const QVariantMap all = id == 0 || hasLine(id) ? properties(id, {}) : QVariantMap();
    // An unset property has no type to send; an empty text displays the same.
    return QDBusVariant(all.value(name, QString()));
}

void DBusMenu::Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp)
{
    Q_UNUSED(data);
    Q_UNUSED(timestamp);
    if (eventId != "clicked"_L1 || !hasLine(id) || !m_lines.at(id - 1).entry.action)
        return;
    // The desktop keeps its menu open until it has the answer.
    QMetaObject::invokeMethod(this, m_lines.at(id - 1).entry.action, Qt::QueuedConnection);
}

QList<int> DBusMenu::EventGroup(const QList<DBusMenuEvent> &events)
{
    QList<int> unknown;
    for (const DBusMenuEvent &event : events) {
        if (event.id == 0 || hasLine(event.id))
            Event(event.id, event.name, event.data, event.timestamp);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int id)
{
    Q_UNUSED(id);
    const bool hasChanged = false;
    return hasChanged;
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
{
    Q_UNUSED(ids);
    Q_UNUSED(idErrors);
    return {};
}

} // namespace vesk
