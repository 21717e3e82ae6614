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

/// An application on the accessibility bus, as a test describes it. It belongs to the test's process.
class AccessibleApplication final : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// What an object is; its name is the last part of its path. The root is called "root".
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
        /// Says -1 when it is asked how many selections it has.
        bool hasUnknownSelection = false;
        QStringList children = {};
        QMap<QString, QString> attributes = {};
    };

    /// How it behaves as a whole.
    struct Manner
    {
        bool hasCollection = false;
        bool hasLinks = false;
        /// Its root has no children before it is asked for its attributes.
        bool isAsleep = false;
        bool isSilent = false;
        /// The one object that does not answer.
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
    /// How many calls have come, answered or not.
    [[nodiscard]] int calls() const { return m_calls; }

    /// Says that an object got or lost the keyboard, whatever its state is.
    void announceFocus(const QString &name, bool isFocused);

    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    [[nodiscard]] QVariantList answer(const QDBusMessage &message);
    [[nodiscard]] QVariant reference(const QString &name) const;
    [[nodiscard]] QVariant references(const QStringList &names) const;
    [[nodiscard]] QString parentOf(const QString &name) const;
    [[nodiscard]] QStringList focusedBelow(const QString &name, bool isTextWanted) const;
    /// The web pages that are shown below an object.
    [[nodiscard]] QStringList pagesBelow(const QString &name) const;
    [[nodiscard]] QString embeddedAt(const Object &object, int place) const;

    QString m_name;
    QDBusConnection m_connection;
    QHash<QString, Object> m_objects;
    Manner m_manner;
    int m_calls = 0;
};

} // namespace vesk
