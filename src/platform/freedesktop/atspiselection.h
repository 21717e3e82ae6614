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
    /// Whether the text was assembled from a page or from several paragraphs, so that it may differ from what
    /// the application itself would copy.
    bool isAssembled = false;
    /// Whether this may be only part of the selection, because the application does not expose what is off
    /// screen.
    bool isPart = false;
};

/// The text selected at this object: in the object itself, or in the page or the sequence of paragraphs that
/// contains it. nullopt if the object is not a text, cannot tell, or the selection could not be read
/// completely.
QCoro::Task<std::optional<AtSpiSelection>> readAtSpiSelection(AtSpiQuestion question, AtSpiReference object);

} // namespace vesk
