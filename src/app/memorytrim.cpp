// SPDX-License-Identifier: MIT
#include "app/memorytrim.h"

#include "platform/application.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vesk {

MemoryTrim::MemoryTrim(Application &application)
{
    // Long enough not to trim between two presses of the key.
    constexpr std::chrono::seconds kQuiet{3};
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(kQuiet);
    connect(&application, &Application::didHide, &m_quiet, qOverload<>(&QTimer::start));
    connect(&m_quiet, &QTimer::timeout, this, [&application] {
#ifdef __GLIBC__
        if (!application.isActive())
            malloc_trim(0);
#else
        Q_UNUSED(application)
#endif
    });
    m_quiet.start();
}

} // namespace vesk
