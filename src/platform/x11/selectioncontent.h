// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pasteboard.h"
#include "platform/x11/selectiontransfer.h"

#include <QCoroTask>

#include <QString>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class X11Connection;

/// What a selection's owner has to give, PRIMARY's and CLIPBOARD's alike. Content that its owner
/// declares secret is nothing, and is not read. The allowances must outlive the readings.
namespace selectioncontent {

/// The longest form, in bytes, that is taken, and the size of all of them together.
inline constexpr qsizetype kMaximumBytes = qsizetype{64} * 1024 * 1024;
inline constexpr qsizetype kMaximumTotalBytes = 2 * kMaximumBytes;

/// For a reading that the user does not wait for, as such: a hung owner is noticed at once.
inline constexpr ReadingAllowance::Limits kShort{.silence = SelectionTransfer::kDeadline,
                                                 .total = std::chrono::milliseconds{1000},
                                                 .bytes = kMaximumTotalBytes};
/// For a text that the user has asked for.
inline constexpr ReadingAllowance::Limits kLong{.silence = std::chrono::milliseconds{1000},
                                                .total = std::chrono::milliseconds{3000},
                                                .bytes = kMaximumTotalBytes};
/// For everything that there is.
inline constexpr ReadingAllowance::Limits kEverything{.silence = SelectionTransfer::kDeadline,
                                                      .total = std::chrono::milliseconds{2000},
                                                      .bytes = kMaximumTotalBytes};

/// The content as text. Nullopt if the owner has no text, declares it secret, or does not deliver it within
/// the allowance. A text beyond `kMaximumTextBytes` comes cut beyond that size.
[[nodiscard]] QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection,
                                                       ReadingAllowance &allowance);
/// The same within a short allowance of its own.
[[nodiscard]] QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection);

/// Everything that the owner gives and that another owner could give in its place, in its order. Left out
/// is what the owner refuses, and what is not delivered but can be made from what is. Empty if anything
/// else is not delivered whole and within the allowance, or is secret.
[[nodiscard]] QCoro::Task<PasteboardItem> representations(X11Connection &connection, xcb_atom_t selection,
                                                          ReadingAllowance &allowance);

} // namespace selectioncontent

} // namespace vesk
