// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringView>

namespace vesk {

/// What a notice says, and its symbol.
struct Notice
{
    const char *message;
    QStringView symbol;

    /// What it says, in the user's language.
    [[nodiscard]] QString text() const { return QCoreApplication::translate("vesk::Notice", message); }
};

namespace notices {

/// Said once a new note is on the disk, not before.
inline constexpr Notice kSaved{.message = QT_TRANSLATE_NOOP("vesk::Notice", "Saved to Vesk"),
                               .symbol = u"checkmark.circle.fill"};
/// The store holds on to the note and writes it when the disk lets it.
inline constexpr Notice kNotSaved{.message =
                                      QT_TRANSLATE_NOOP("vesk::Notice", "Not saved yet, Vesk keeps trying"),
                                  .symbol = u"exclamationmark.triangle.fill"};

} // namespace notices
} // namespace vesk
