// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace vesk {

/// What a notice says, and its symbol.
struct Notice
{
    QStringView message;
    QStringView symbol;
};

namespace notices {

/// Said once a new note is on the disk, not before.
inline constexpr Notice kSaved{.message = u"Saved to Vesk", .symbol = u"checkmark.circle.fill"};
/// The store holds on to the note and writes it when the disk lets it.
inline constexpr Notice kNotSaved{.message = u"Not saved yet, Vesk keeps trying",
                                  .symbol = u"exclamationmark.triangle.fill"};

} // namespace notices
} // namespace vesk
