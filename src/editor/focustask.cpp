// SPDX-License-Identifier: MIT
#include "editor/focustask.h"

#include <QQuickItem>
#include <QQuickWindow>

using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kPeriod = 10ms;
constexpr int kWindowChecks = 20;
constexpr auto kSettling = 60ms;
constexpr int kActiveChecks = 30;

} // namespace

FocusTask::FocusTask(const QQuickItem &item, QObject *parent)
    : QObject(parent)
    , m_item(item)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FocusTask::check);
}

void FocusTask::start()
{
    m_hasSettled = false;
    m_checks = 0;
    check();
}

bool FocusTask::finish()
{
    if (!m_timer.isActive())
        return false;
    m_timer.stop();
    Q_EMIT ended();
    return true;
}

void FocusTask::check()
{
    const QQuickWindow *window = m_item.window();
    if (!m_hasSettled) {
        if (!window && m_checks++ < kWindowChecks)
            return checkLater();
        m_hasSettled = true;
        m_checks = 0;
        m_timer.start(kSettling);
        return;
    }
    if (window && !window->isActive() && m_checks++ < kActiveChecks)
        return checkLater();
    Q_EMIT ended();
}

void FocusTask::checkLater()
{
    m_timer.start(kPeriod);
}

} // namespace vesk
