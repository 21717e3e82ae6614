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

/// Reads the content of any selection. Content that its owner marks as secret counts as none, and is not
/// read. The allowances must outlive the readings.
namespace selectioncontent {

/// The limits, in bytes, for one form and for all forms together.
inline constexpr qsizetype kMaximumBytes = qsizetype{64} * 1024 * 1024;
inline constexpr qsizetype kMaximumTotalBytes = 2 * kMaximumBytes;

/// For a reading that must not hold up the user: gives up quickly on a hung owner.
inline constexpr ReadingAllowance::Limits kShort{.silence = SelectionTransfer::kDeadline,
                                                 .total = std::chrono::milliseconds{1000},
                                                 .bytes = kMaximumTotalBytes};
/// For a text that the user has asked for.
inline constexpr ReadingAllowance::Limits kLong{.silence = std::chrono::milliseconds{1000},
                                                .total = std::chrono::milliseconds{3000},
                                                .bytes = kMaximumTotalBytes};
/// For saving the whole content.
inline constexpr ReadingAllowance::Limits kEverything{.silence = SelectionTransfer::kDeadline,
                                                      .total = std::chrono::milliseconds{2000},
                                                      .bytes = kMaximumTotalBytes};

/// Reads the content as text. Nullopt if the owner has no text, marks it as secret, or does not deliver it
/// within the allowance. A text of more than `kMaximumReadBytes` is cut off beyond that size.
[[nodiscard]] QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection,
                                                       ReadingAllowance &allowance);
/// The same with the allowance `kShort`.
[[nodiscard]] QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection);

/// Reads everything that another owner could offer in place of this one, in the owner's order. Leaves out
/// what the owner refuses, and what it does not deliver but can be made from the rest. Empty if anything else
/// is secret or is not delivered completely within the allowance.
[[nodiscard]] QCoro::Task<PasteboardItem> representations(X11Connection &connection, xcb_atom_t selection,
                                                          ReadingAllowance &allowance);

} // namespace selectioncontent

} // namespace vesk
