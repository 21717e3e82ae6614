// SPDX-License-Identifier: MIT
#include "platform/freedesktop/canberrasounds.h"

#include <QCoreApplication>

#include <canberra.h>

namespace vesk {

CanberraSounds::CanberraSounds()
{
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(10'000);
    ca_context *context = nullptr;
    if (ca_context_create(&context) != CA_SUCCESS)
        return;
    m_context.reset(context);
    ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Vesk", CA_PROP_APPLICATION_ID,
                            "org.vesk.Vesk", nullptr);
}

CanberraSounds::~CanberraSounds()
{
    m_thread.clear();
    // A server that does not answer holds the thread; the program's end is not held up for that.
    constexpr int kPatience = 200; // milliseconds
    if (!m_thread.waitForDone(kPatience))
        static_cast<void>(m_context.release());
}

void CanberraSounds::play(Sound sound)
{
    Q_ASSERT(sound == Sound::Tink);
    // One sound waits at most; more would only come late.
    if (!m_context || m_thread.activeThreadCount() > 0)
        return;
    const QString description = QCoreApplication::translate("vesk::CanberraSounds", "Saved to Vesk");
    m_thread.start([context = m_context.get(), description = description.toUtf8()] {
        // The name for "something is done" in the sound naming rules of the free desktops.
        ca_context_play(context, 0, CA_PROP_EVENT_ID, "complete", CA_PROP_EVENT_DESCRIPTION,
                        description.constData(), CA_PROP_MEDIA_ROLE, "event", CA_PROP_CANBERRA_CACHE_CONTROL,
                        "permanent", nullptr);
    });
}

void CanberraSounds::Destroy::operator()(ca_context *context) const
{
    ca_context_destroy(context);
}

} // namespace vesk
