// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>

#include <functional>

namespace vesk {

/// The interface org.kde.StatusNotifierItem, through which the desktop reads the icon. The desktop finds the
/// picture by name in its icon theme. Owned by the object whose path it is exported under.
class StatusItem final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString IconName READ iconName CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    StatusItem(std::function<void()> activated, QDBusObjectPath menu, QObject *parent)
        : QDBusAbstractAdaptor(parent)
        , m_activated(std::move(activated))
        , m_menu(std::move(menu))
    {
    }

    [[nodiscard]] static QString category() { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] static QString id() { return QStringLiteral("org.vesk.Vesk"); }
    [[nodiscard]] static QString title() { return QStringLiteral("Vesk"); }
    [[nodiscard]] static QString status() { return QStringLiteral("Active"); }
    // The coloured icon, because not every desktop recolours a symbolic one for a dark panel.
    [[nodiscard]] static QString iconName() { return QStringLiteral("org.vesk.Vesk"); }
    [[nodiscard]] static bool itemIsMenu() { return false; }
    [[nodiscard]] QDBusObjectPath menu() const { return m_menu; }

public Q_SLOTS:
    // NOLINTBEGIN(bugprone-easily-swappable-parameters): of the protocol
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y) { Activate(x, y); }
    /// Desktops draw the menu themselves. This is called by those that cannot, which get no menu.
    void ContextMenu(int x, int y) { Activate(x, y); }
    static void Scroll(int delta, const QString &orientation);
    // NOLINTEND(bugprone-easily-swappable-parameters)

private:
    std::function<void()> m_activated;
    QDBusObjectPath m_menu;
};

} // namespace vesk
