// SPDX-License-Identifier: MIT
#include "platform/freedesktop/canberrasounds.h"

#include <QCoreApplication>

#include <canberra.h>

#include <atomic>
#include <system_error>
#include <thread>

namespace vesk {

struct CanberraSounds::Player
{
    struct Destroy
    {
        void operator()(ca_context *ended) const { ca_context_destroy(ended); }
    };

    std::unique_ptr<ca_context, Destroy> context;
    std::atomic<bool> isBusy = false;
};

CanberraSounds::CanberraSounds()
{
    ca_context *context = nullptr;
    if (ca_context_create(&context) != CA_SUCCESS)
        return;
    m_player = std::make_shared<Player>();
    m_player->context.reset(context);
    ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Vesk", CA_PROP_APPLICATION_ID,
                            "org.vesk.Vesk", nullptr);
}

CanberraSounds::~CanberraSounds() = default;

void CanberraSounds::play(Sound sound)
{
    Q_ASSERT(sound == Sound::Tink);
    // A sound that has to wait for the previous one would be too late.
    if (!m_player || m_player->isBusy.exchange(true))
        return;
    const QString description = QCoreApplication::translate("vesk::CanberraSounds", "Saved to Vesk");
    const auto play = [player = m_player, description = description.toUtf8()] {
        // The name for "complete" in the freedesktop.org sound naming specification.
        ca_context_play(player->context.get(), 0, CA_PROP_EVENT_ID, "complete", CA_PROP_EVENT_DESCRIPTION,
                        description.constData(), CA_PROP_MEDIA_ROLE, "event", CA_PROP_CANBERRA_CACHE_CONTROL,
                        "permanent", nullptr);
        player->isBusy = false;
    };
    try {
        // Detached: joining the thread would hold up the program's exit while the server hangs.
        std::thread(play).detach();
    } catch (const std::system_error &) {
        // No thread could be created. The note is kept, and the notice confirms it.
        m_player->isBusy = false;
    }
}

} // namespace vesk
