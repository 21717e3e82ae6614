// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

namespace vesk {

/// Returns whether a text field in a web page is the input of a terminal in that page. False if that is not
/// known.
[[nodiscard]] QCoro::Task<bool> isWebTerminal(AtSpiQuestion question, AtSpiReference field);

} // namespace vesk
