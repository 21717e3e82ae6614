// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

#include <memory>

struct URelativeDateTimeFormatter;

namespace vesk {

/// Says how long ago something was, briefly and in the user's language: "Just now", "3 hr. ago", "Yesterday".
class RelativeTime final
{
public:
    RelativeTime();
    ~RelativeTime();

    /// `date` relative to `now`. A future date is "Just now".
    [[nodiscard]] QString text(Date date, Date now) const;

private:
    struct Close
    {
        void operator()(URelativeDateTimeFormatter *formatter) const;
    };
    /// Null if there is no data for any language; then every text except "Just now" is empty.
    std::unique_ptr<URelativeDateTimeFormatter, Close> m_formatter;
};

} // namespace vesk
