// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"

#include <QObject>

class QQmlEngine;

namespace vesk {

class NotesStore;
class Pasteboard;

/// Says at the end of a run that some texts are not in the file, and lets the user take them elsewhere.
class UnwrittenWindow final : public QObject
{
    Q_OBJECT

public:
    /// Hidden at first. All have to outlive the window.
    UnwrittenWindow(QQmlEngine &engine, const NotesStore &store, Pasteboard &pasteboard);

    void show() { m_window.show(); }

Q_SIGNALS:
    /// The user wants the program to end.
    void quitRequested();

private:
    UnwrittenWindow(QQmlEngine &engine, const QString &texts, Pasteboard &pasteboard);

    MessageWindow m_window;
};

} // namespace vesk
