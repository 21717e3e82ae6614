// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

#include <QList>
#include <QString>

#include <optional>

namespace vesk {

/// Part of an object's text, in characters (not UTF-16 units); an end of -1 is that of the text.
struct AtSpiRange
{
    int start = 0;
    int end = 0;
};

/// What is selected in the object, as it says itself: an empty list if nothing is; nullopt if the object is
/// not a text, cannot tell, or does not answer.
QCoro::Task<std::optional<QList<AtSpiRange>>> readAtSpiRanges(AtSpiQuestion question, AtSpiReference object);

/// The text of these ranges with that of the objects embedded in it: blocks on lines of their own,
/// cells of a table apart by tabs. Password fields, other fields and frames within it have no part in
/// the selection around them. Several ranges are apart by line breaks. Nullopt if not all of it could be
/// read.
QCoro::Task<std::optional<QString>> readAtSpiText(AtSpiQuestion question, AtSpiReference object,
                                                  QList<AtSpiRange> ranges);

} // namespace vesk
