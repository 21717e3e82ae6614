// SPDX-License-Identifier: MIT
#pragma once

#include "app/questions.h"
#include "platform/updates.h"

#include <QObject>

#include <memory>

class QQmlEngine;

namespace vesk {

class Workspace;

/// Checks for a newer Vesk when the user asks for it, and shows the result in a small window. The desktop's
/// own updater installs; this class only opens it.
class AppUpdater final : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object.
    AppUpdater(QQmlEngine &engine, Updates &updates, Workspace &workspace, Questions &questions);

    [[nodiscard]] bool canCheck() const { return m_updates.canCheckForUpdates(); }
    void checkForUpdates() { m_updates.checkForUpdates(); }

    /// Returns what the window shows for a result. `updater` is the identifier of the application that
    /// installs updates; empty if there is none.
    [[nodiscard]] static MessageWindow::Content describe(const Updates::Result &result,
                                                         const QString &updater);

Q_SIGNALS:
    void canCheckChanged();

private:
    void show(const Updates::Result &result);

    QQmlEngine &m_engine;
    Updates &m_updates;
    Workspace &m_workspace;
    Questions &m_questions;
    std::unique_ptr<MessageWindow> m_window;
};

} // namespace vesk
