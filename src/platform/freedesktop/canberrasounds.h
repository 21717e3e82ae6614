// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sounds.h"

#include <QThreadPool>

#include <memory>

struct ca_context;

namespace vesk {

/// Sounds of the desktop's sound theme. The sound server is spoken to on a thread of its own: the
/// first contact waits for the server's answer, and a hung server would hold up Vesk.
class CanberraSounds final : public Sounds
{
public:
    CanberraSounds();
    ~CanberraSounds() override;

    void play(Sound sound) override;

private:
    struct Destroy
    {
        void operator()(ca_context *context) const;
    };

    std::unique_ptr<ca_context, Destroy> m_context;
    QThreadPool m_thread;
};

} // namespace vesk
