// SPDX-License-Identifier: MIT
#pragma once

#include "notes/storeerror.h"
#include "platform/clock.h"

#include <QCoreApplication>
#include <QString>

namespace vesk {

/// What a user can do about a store that is damaged or gone, if there is a copy of it.
struct StoreAdvice
{
    Q_DECLARE_TR_FUNCTIONS(vesk::StoreAdvice)

public:
    /// Names the copy and says how to begin anew instead; empty if no copy helps against this fault.
    QString message = {};
    /// For a shell: puts the newest sound copy in the store's place. Empty if there is none.
    QString command = {};

    /// Reads the copies, which takes its time. `now` becomes part of the command.
    [[nodiscard]] static StoreAdvice on(const QString &store, StoreFault fault, Date now);
};

} // namespace vesk
