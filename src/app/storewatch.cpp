// SPDX-License-Identifier: MIT
#include "app/storewatch.h"

#include "notes/notesstore.h"
#include "platform/clock.h"

namespace vesk {

using namespace std::chrono_literals;

StoreWatch::StoreWatch(NotesStore &store, Clock &clock)
    : m_store(store)
{
    watch(this, &clock);
}

QCoro::Task<> StoreWatch::watch(QPointer<StoreWatch> self, Clock *clock)
{
    while (true) {
        co_await clock->sleep(1min);
        if (!self)
            co_return;
        // The panel shows a failure, and the store tries again.
        static_cast<void>(self->m_store.save());
    }
}

} // namespace vesk
