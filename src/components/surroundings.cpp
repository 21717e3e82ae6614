// SPDX-License-Identifier: MIT
#include "components/surroundings.h"

#include "platform/workspace.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

// Made by the build. Naming it keeps the module's registration when the library is linked.
extern void qml_register_types_Vesk_Components(); // NOLINT(readability-identifier-naming): not our name

namespace vesk {

Surroundings::Surroundings(Appearance &appearance, Workspace &workspace, Windows &windows, QQmlEngine &engine)
    : QObject(&engine)
    , m_appearance(appearance)
    , m_workspace(workspace)
    , m_windows(windows)
{
}

Surroundings &Surroundings::of(const QQmlEngine &engine)
{
    auto *found = engine.findChild<Surroundings *>(QString(), Qt::FindDirectChildrenOnly);
    Q_ASSERT(found);
    return *found;
}

QIcon Surroundings::icon(const QString &bundleIdentifier)
{
    auto known = m_icons.find(bundleIdentifier);
    if (known == m_icons.end())
        known = m_icons.insert(bundleIdentifier, m_workspace.iconForApplication(bundleIdentifier));
    return *known;
}

void lendToEngine(QQmlEngine &engine, Appearance &appearance, Workspace &workspace, Windows &windows)
{
    [[maybe_unused]] static const volatile auto registration = &qml_register_types_Vesk_Components;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    new Surroundings(appearance, workspace, windows, engine);
}

} // namespace vesk
