// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

namespace vesk {

/// The system's clock. Sleeps with Qt's timers.
class SystemClock final : public Clock
{
public:
    [[nodiscard]] Date now() const override;
    [[nodiscard]] std::chrono::microseconds monotonic() const override;
    QCoro::Task<> sleep(std::chrono::milliseconds duration) override;
};

} // namespace vesk
