// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>

class QQmlEngine;

namespace vesk {

class Appearance;
class Windows;
class Workspace;

/// What the views of one QML engine may know of the desktop around them. Owned by the engine.
class Surroundings final : public QObject
{
    Q_OBJECT

public:
    Surroundings(Appearance &appearance, Workspace &workspace, Windows &windows, QQmlEngine &engine);

    /// What was lent to this engine; `lendToEngine` has to come before every view.
    [[nodiscard]] static Surroundings &of(const QQmlEngine &engine);

    [[nodiscard]] Appearance &appearance() const { return m_appearance; }
    [[nodiscard]] Windows &windows() const { return m_windows; }

    /// An application's icon, looked up once for the rest of the run; null if there is none.
    [[nodiscard]] QIcon icon(const QString &bundleIdentifier);

private:
    Appearance &m_appearance;
    Workspace &m_workspace;
    Windows &m_windows;
    QHash<QString, QIcon> m_icons;
};

/// Readies an engine for Vesk's views. The three have to outlive the engine.
void lendToEngine(QQmlEngine &engine, Appearance &appearance, Workspace &workspace, Windows &windows);

} // namespace vesk
