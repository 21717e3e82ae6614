// SPDX-License-Identifier: MIT
#pragma once

#include "notes/storeerror.h"
#include "platform/clock.h"

#include <QCoreApplication>
#include <QString>

namespace vesk {

/// What a user can do about a store that is damaged or missing, if there is a copy of it.
struct StoreAdvice
{
    Q_DECLARE_TR_FUNCTIONS(vesk::StoreAdvice)

public:
    /// Names the copy and explains how to start over instead; empty if a copy does not help against this
    /// fault.
    QString message = {};
    /// A shell command that puts the newest sound copy in the store's place; empty if there is none.
    QString command = {};

    /// Reads the copies, which can take a while. `now` becomes part of the command.
    [[nodiscard]] static StoreAdvice on(const QString &store, StoreFault fault, Date now);
};

} // namespace vesk
