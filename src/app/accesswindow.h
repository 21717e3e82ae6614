// SPDX-License-Identifier: MIT
#pragma once

#include "app/questions.h"

#include <QObject>

class QQmlEngine;

namespace vesk {

class Consent;

/// Asks the user whether Vesk may read what is selected in other applications. Either button sets the answer,
/// even if there was another before. Closing the window changes nothing.
class AccessWindow final : public QObject
{
    Q_OBJECT

public:
    /// Hidden at first. All must outlive the window.
    AccessWindow(QQmlEngine &engine, Consent &consent, Questions &questions);

    /// Shows the question because the user wants to see it.
    void show() { m_questions.showAsked(m_window); }
    /// Shows the question because Vesk needs the answer.
    void ask() { m_questions.showUnasked(m_window); }

private:
    Questions &m_questions;
    MessageWindow m_window;
};

} // namespace vesk
