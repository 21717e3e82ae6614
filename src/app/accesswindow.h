// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"

#include <QObject>

class QQmlEngine;

namespace vesk {

class Consent;

/// Asks the user whether Vesk may read what is selected in other applications. Each button is the answer from
/// then on, also where the other one was given before. Closing the window leaves things as they are.
class AccessWindow final : public QObject
{
    Q_OBJECT

public:
    /// Hidden at first. Both must outlive the window.
    AccessWindow(QQmlEngine &engine, Consent &consent);

    void show() { m_window.show(); }

Q_SIGNALS:
    /// The user has answered or closed the window, which is about to go.
    void answered();

private:
    MessageWindow m_window;
};

} // namespace vesk
