// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspiquestion.h"

#include <QCoroTask>

#include <QList>
#include <QString>

#include <optional>

namespace vesk {

/// A part of an object's text, in characters (not UTF-16 units). An end of -1 is the end of the text.
struct AtSpiRange
{
    int start = 0;
    int end = 0;
};

/// Returns what is selected in the object, according to the object: an empty list if nothing is; nullopt if
/// it is not a text, cannot tell, or does not answer.
QCoro::Task<std::optional<QList<AtSpiRange>>> readAtSpiRanges(AtSpiQuestion question, AtSpiReference object);

/// Returns the text of these ranges, including the objects embedded in it: blocks on separate lines, table
/// cells separated by tabs, several ranges separated by line breaks. Leaves out password fields, other fields
/// and frames, which are not part of the selection around them. Nullopt if anything could not be read.
QCoro::Task<std::optional<QString>> readAtSpiText(AtSpiQuestion question, AtSpiReference object,
                                                  QList<AtSpiRange> ranges);

} // namespace vesk
