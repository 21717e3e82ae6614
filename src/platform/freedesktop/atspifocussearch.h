// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

#include <optional>

namespace vesk {

/// The result of a search for the object with the focus in an application.
struct AtSpiFocus
{
    /// Nullopt if no object that was seen claims the keyboard.
    std::optional<AtSpiReference> object;
    /// Whether the object has a text. Containers claim the focus together with what they contain.
    bool isText = false;
    /// Whether all objects that can have the focus were seen.
    bool isComplete = false;
};

/// Returns the outermost web page in the active window of an application, using the application's own search;
/// nullopt if there is none.
QCoro::Task<std::optional<AtSpiReference>> searchShownPage(AtSpiQuestion question,
                                                           AtSpiReference application);

/// Searches an application, its active window first, for the object with the focus: with the application's
/// own search if its toolkit has one, otherwise object by object.
QCoro::Task<AtSpiFocus> searchFocus(AtSpiQuestion question, AtSpiReference application);

} // namespace vesk
