// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringView>

namespace vesk {

/// A notice's message and symbol.
struct Notice
{
    const char *message;
    QStringView symbol;

    /// The message in the user's language.
    [[nodiscard]] QString text() const { return QCoreApplication::translate("vesk::Notice", message); }
};

namespace notices {

/// Shown only once a new note is on the disk.
inline constexpr Notice kSaved{.message = QT_TRANSLATE_NOOP("vesk::Notice", "Saved to Vesk"),
                               .symbol = u"checkmark.circle.fill"};
/// The store keeps the note and writes it when the disk allows.
inline constexpr Notice kNotSaved{.message =
                                      QT_TRANSLATE_NOOP("vesk::Notice", "Not saved yet, Vesk keeps trying"),
                                  .symbol = u"exclamationmark.triangle.fill"};
/// A text that was to be pasted is only on the clipboard.
inline constexpr Notice kCopiedWindowClosed{
    .message = QT_TRANSLATE_NOOP("vesk::Notice", "Copied. The window you came from has closed"),
    .symbol = u"doc.on.doc"};
inline constexpr Notice kCopiedOnly{
    .message = QT_TRANSLATE_NOOP("vesk::Notice", "Copied. Paste it where you need it"),
    .symbol = u"doc.on.doc"};

} // namespace notices
} // namespace vesk
