// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace vesk {

/// Lets the program end in order when the session, or a terminal, tells it to (SIGTERM, SIGINT,
/// SIGHUP). One for the program.
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
