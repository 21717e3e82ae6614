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

/// What the views of a QML engine may know about the desktop. Owned by the engine.
class Surroundings final : public QObject
{
    Q_OBJECT

public:
    Surroundings(Appearance &appearance, Workspace &workspace, Windows &windows, QQmlEngine &engine);

    /// The surroundings of this engine; call `lendToEngine` before creating any view.
    [[nodiscard]] static Surroundings &of(const QQmlEngine &engine);

    [[nodiscard]] Appearance &appearance() const { return m_appearance; }
    [[nodiscard]] Windows &windows() const { return m_windows; }

    /// An application's icon, looked up once and cached; null if there is none.
    [[nodiscard]] QIcon icon(const QString &bundleIdentifier);

private:
    Appearance &m_appearance;
    Workspace &m_workspace;
    Windows &m_windows;
    QHash<QString, QIcon> m_icons;
};

/// Prepares an engine for Vesk's views. The three arguments must outlive the engine.
void lendToEngine(QQmlEngine &engine, Appearance &appearance, Workspace &workspace, Windows &windows);

} // namespace vesk
