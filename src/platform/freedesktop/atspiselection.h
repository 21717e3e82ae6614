// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

#include <QString>

#include <optional>

namespace vesk {

/// The text that is selected where this object is: in the object itself, or in the page or the row of
/// paragraphs that it is a part of. Empty if nothing is; none if the object is no text or the
/// selection could not be read whole.
QCoro::Task<std::optional<QString>> readAtSpiSelection(AtSpiQuestion question, AtSpiReference object);

} // namespace vesk
