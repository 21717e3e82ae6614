// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace vesk {

/// Quits the program properly when the session or a terminal asks it to (SIGTERM, SIGINT, SIGHUP). One per
/// program.
class QuitSignals final : public QObject
{
    Q_OBJECT

public:
    QuitSignals();
    ~QuitSignals() override;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace vesk
