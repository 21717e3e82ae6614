// SPDX-License-Identifier: MIT
#include "app/quitsignals.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

namespace vesk {

namespace {

int g_descriptor = -1;

// A signal comes in the middle of anything, on any thread; only a write is safe there.
void onSignal(int /*signal*/)
{
    const uint64_t once = 1;
    static_cast<void>(!write(g_descriptor, &once, sizeof once));
}

} // namespace

QuitSignals::QuitSignals()
{
    g_descriptor = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    if (g_descriptor < 0)
        return; // The signals end the program as they are: nothing that was saved is lost.
    m_notifier = std::make_unique<QSocketNotifier>(g_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [] {
        // Read, so that the next signal ends what is asked of the user at the end.
        uint64_t count = 0;
        static_cast<void>(!read(g_descriptor, &count, sizeof count));
        // Not quit(), which asks the windows, and the panel answers that it only hides.
        QCoreApplication::exit(0);
    });
    struct sigaction action
    {
    };
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}

QuitSignals::~QuitSignals()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        ::signal(signal, SIG_DFL);
    m_notifier.reset();
    if (g_descriptor >= 0)
        close(g_descriptor);
}

} // namespace vesk
