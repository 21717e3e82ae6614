// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

#include <QString>

#include <optional>

namespace vesk {

struct AtSpiSelection
{
    /// Empty if nothing is selected.
    QString text;
    /// Whether the text was put together from a page or from several paragraphs: it may differ from what
    /// the application itself would copy.
    bool isAssembled = false;
    /// Whether it may be only a part of what is selected: the application has the rest out of sight.
    bool isPart = false;
};

/// The text that is selected where this object is: in the object itself, or in the page or the row of
/// paragraphs that it is a part of. Nullopt if the object is not a text, cannot tell, or the selection could
/// not be read whole.
QCoro::Task<std::optional<AtSpiSelection>> readAtSpiSelection(AtSpiQuestion question, AtSpiReference object);

} // namespace vesk
