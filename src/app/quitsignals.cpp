// SPDX-License-Identifier: MIT
#include "app/quitsignals.h"

#include <QCoreApplication>

#include <array>
#include <csignal>

#include <sys/signalfd.h>
#include <unistd.h>

namespace vesk {

QuitSignals::QuitSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&set, signal);
    const int descriptor = signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
    if (descriptor < 0)
        return; // The signals end the program as they are: nothing that was saved is lost.
    sigprocmask(SIG_BLOCK, &set, nullptr);
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [] { QCoreApplication::quit(); });
}

QuitSignals::~QuitSignals()
{
    if (m_notifier)
        close(static_cast<int>(m_notifier->socket()));
}

} // namespace vesk
