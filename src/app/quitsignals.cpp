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

// A signal can arrive at any moment on any thread; only a write is safe here.
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
        return; // The default action ends the program: nothing that was saved is lost.
    m_notifier = std::make_unique<QSocketNotifier>(g_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [] {
        // Reset the counter: a second signal must end the question that is shown at exit.
        uint64_t count = 0;
        static_cast<void>(!read(g_descriptor, &count, sizeof count));
        // Not quit(), which asks the windows to close; the panel would refuse and merely hide.
        QCoreApplication::exit(0);
    });
    struct sigaction action{};
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
