// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

namespace vesk {

/// Whether a text field of a web page is the one into which a terminal in the page takes its keys. False if
/// that cannot be told.
[[nodiscard]] QCoro::Task<bool> isWebTerminal(AtSpiQuestion question, AtSpiReference field);

} // namespace vesk
