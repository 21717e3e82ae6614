// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QList>
#include <QMap>
#include <QStringList>

#include <utility>

namespace vesk {

/// An application on the accessibility bus, as described by a test. It belongs to the test's process.
class AccessibleApplication final : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// An object of the application; its name is the last part of its path. The root is called "root".
    struct Object
    {
        QString role = QStringLiteral("panel");
        bool isFocused = false;
        bool isActive = false;
        bool isVisible = true;
        bool isEditable = false;
        bool isText = false;
        QString text = {};
        QList<std::pair<int, int>> selections = {};
        /// Whether it returns -1 when asked for its number of selections.
        bool hasUnknownSelection = false;
        QStringList children = {};
        QMap<QString, QString> attributes = {};
    };

    /// The behaviour of the application as a whole.
    struct Manner
    {
        bool hasCollection = false;
        bool hasLinks = false;
        /// Whether its root has no children until somebody asks for its attributes.
        bool isAsleep = false;
        bool isSilent = false;
        /// The only object that does not answer.
        QString silentObject;
    };

    AccessibleApplication(const QString &busAddress, const QHash<QString, Object> &objects);
    ~AccessibleApplication() override;
    Q_DISABLE_COPY_MOVE(AccessibleApplication)

    [[nodiscard]] QString service() const { return m_connection.baseService(); }
    [[nodiscard]] static QString path(const QString &name);
    [[nodiscard]] Object &object(const QString &name) { return m_objects[name]; }
    void removeObject(const QString &name) { m_objects.remove(name); }
    [[nodiscard]] Manner &manner() { return m_manner; }
    /// The number of calls, answered or not.
    [[nodiscard]] int calls() const { return m_calls; }

    /// Announces that an object has gained or lost the focus, whatever its state is.
    void announceFocus(const QString &name, bool isFocused);

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    [[nodiscard]] QVariantList answer(const QDBusMessage &message);
    [[nodiscard]] QVariant reference(const QString &name) const;
    [[nodiscard]] QVariant references(const QStringList &names) const;
    [[nodiscard]] QString parentOf(const QString &name) const;
    [[nodiscard]] QStringList focusedBelow(const QString &name, bool isTextWanted) const;
    /// The visible web pages below an object.
    [[nodiscard]] QStringList pagesBelow(const QString &name) const;
    [[nodiscard]] QString embeddedAt(const Object &object, int place) const;

    QString m_name;
    QDBusConnection m_connection;
    QHash<QString, Object> m_objects;
    Manner m_manner;
    int m_calls = 0;
};

} // namespace vesk
