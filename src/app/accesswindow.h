// SPDX-License-Identifier: MIT
#pragma once

#include "app/questions.h"

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
    /// Hidden at first. All must outlive the window.
    AccessWindow(QQmlEngine &engine, Consent &consent, Questions &questions);

    /// The user wants to see the question.
    void show() { m_questions.showAsked(m_window); }
    /// Vesk needs the answer.
    void ask() { m_questions.showUnasked(m_window); }

private:
    Questions &m_questions;
    MessageWindow m_window;
};

} // namespace vesk
