// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pasteboard.h"

#include <QCoroTask>

#include <QString>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class X11Connection;

/// What a selection's owner has to give, PRIMARY's and CLIPBOARD's alike. Content that its owner
/// declares secret is nothing, and is not read.
namespace selectioncontent {

/// The longest representation, in bytes, that is taken.
inline constexpr qsizetype kMaximumBytes = qsizetype{64} * 1024 * 1024;

/// The content as text. None if the owner has no text, declares it secret, or stalls. A text beyond
/// `kMaximumTextBytes` comes cut beyond that size.
[[nodiscard]] QCoro::Task<std::optional<QString>> text(X11Connection &connection, xcb_atom_t selection);

/// Everything that the owner gives and that another owner could give in its place, in its order. What
/// it refuses is left out; once it stalls, nothing more is asked. Empty for a secret.
[[nodiscard]] QCoro::Task<PasteboardItem> representations(X11Connection &connection, xcb_atom_t selection);

} // namespace selectioncontent

} // namespace vesk
