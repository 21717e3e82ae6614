// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"

#include <QObject>

class QQmlEngine;

namespace vesk {

class NotesStore;
class Pasteboard;

/// Says at the end of a run that some texts are not in the file, and lets the user take them elsewhere. The
/// list follows the store: texts may still arrive, or be written after all.
class UnwrittenWindow final : public QObject
{
    Q_OBJECT

public:
    /// Hidden at first. All must outlive the window.
    UnwrittenWindow(QQmlEngine &engine, const NotesStore &store, Pasteboard &pasteboard);

    void show() { m_window.show(); }

Q_SIGNALS:
    /// The user wants the program to end, or nothing is left to write.
    void quitRequested();

private:
    [[nodiscard]] QString texts() const;
    void update();

    const NotesStore &m_store;
    MessageWindow m_window;
};

} // namespace vesk
