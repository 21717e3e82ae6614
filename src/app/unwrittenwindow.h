// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"

#include <QObject>

class QQmlEngine;

namespace vesk {

class NotesStore;
class Pasteboard;

/// Tells the user, when Vesk quits, that some texts are not in the file, and lets the user copy them. The
/// list follows the store: texts may still arrive, or be written after all.
class UnwrittenWindow final : public QObject
{
    Q_OBJECT

public:
    /// Hidden at first. All must outlive the window.
    UnwrittenWindow(QQmlEngine &engine, const NotesStore &store, Pasteboard &pasteboard);

    /// Brings the window up by itself; see `MessageWindow::Arrival`.
    void appear() { m_window.show(MessageWindow::Arrival::Unasked); }
    /// Brings it forward for a user who asks for Vesk.
    void show() { m_window.show(); }

Q_SIGNALS:
    /// Emitted when the user wants to quit, or nothing is left to write.
    void quitRequested();

private:
    [[nodiscard]] QString texts() const;
    void update();

    const NotesStore &m_store;
    MessageWindow m_window;
};

} // namespace vesk
