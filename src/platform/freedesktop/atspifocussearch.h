// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

#include <optional>

namespace vesk {

/// What a search for the keyboard's place in an application has found.
struct AtSpiFocus
{
    /// Nullopt if nothing that was seen claims it.
    std::optional<AtSpiReference> object;
    /// Whether the object has a text. Containers claim the keyboard along with what they contain.
    bool isText = false;
    /// Whether all that can have it was seen.
    bool isComplete = false;
};

/// The outermost web page that the active window of an application shows, by the application's own search;
/// nullopt if there is none.
QCoro::Task<std::optional<AtSpiReference>> searchShownPage(AtSpiQuestion question,
                                                           AtSpiReference application);

/// Looks through an application, its active window first, for what has the keyboard: by the
/// application's own search where its toolkit has one, else object by object.
QCoro::Task<AtSpiFocus> searchFocus(AtSpiQuestion question, AtSpiReference application);

} // namespace vesk
