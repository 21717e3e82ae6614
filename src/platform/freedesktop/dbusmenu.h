// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QKeySequence>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace vesk {

/// One entry of a menu that the desktop shows: an action, a submenu or, without a label, a separator.
struct DBusMenuEntry
{
    QString label;
    std::function<void()> action;
    /// Shown beside the label only; the owner of the menu must handle these keys.
    QKeySequence keys = {};
    QList<DBusMenuEntry> children = {};
};

// The structures of the protocol.

struct DBusMenuItem
{
    int id = 0;
    QVariantMap properties;
};

struct DBusMenuLayout
{
    int id = 0;
    QVariantMap properties;
    /// Of layouts.
    QVariantList children;
};

struct DBusMenuEvent
{
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuItem &item);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuItem &item);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event);

/// A menu that the desktop draws itself after reading its entries over the bus (com.canonical.dbusmenu). It
/// never changes. Owned by the object whose path it is exported under. Entries are numbered from 1, each
/// before its children; the menu itself is 0.
class DBusMenu final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    DBusMenu(const QList<DBusMenuEntry> &entries, QObject *parent);

    [[nodiscard]] static uint version() { return 3; }
    [[nodiscard]] static QString status() { return QStringLiteral("normal"); }
    [[nodiscard]] static QString textDirection();
    [[nodiscard]] static QStringList iconThemePath() { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames,
                   vesk::DBusMenuLayout &layout) const;
    [[nodiscard]] QList<vesk::DBusMenuItem> GetGroupProperties(const QList<int> &ids,
                                                               const QStringList &propertyNames) const;
    [[nodiscard]] QDBusVariant GetProperty(int id, const QString &name) const;
    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const QList<vesk::DBusMenuEvent> &events);
    [[nodiscard]] static bool AboutToShow(int id);
    static QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors);

Q_SIGNALS:
    // Required by the protocol; never emitted, because the menu never changes.
    void LayoutUpdated(uint revision, int parent);

private:
    struct Line
    {
        DBusMenuEntry entry;
        int parent = 0;
    };

    void addLines(const QList<DBusMenuEntry> &entries, int parent);
    [[nodiscard]] bool hasLine(int id) const { return id >= 1 && id <= m_lines.size(); }
    /// Returns the named properties, or all if `names` is empty.
    [[nodiscard]] QVariantMap properties(int id, const QStringList &names) const;
    /// Returns an entry with its descendants down to `depth` levels; all of them if it is negative.
    [[nodiscard]] DBusMenuLayout layout(int id, int depth, const QStringList &names) const;

    QList<Line> m_lines;
};

} // namespace vesk

Q_DECLARE_METATYPE(vesk::DBusMenuItem)
Q_DECLARE_METATYPE(vesk::DBusMenuLayout)
Q_DECLARE_METATYPE(vesk::DBusMenuEvent)
