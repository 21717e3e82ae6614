// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <xcb/xproto.h>

/// What the bytes mean that a selection's owner gives. They come from any program, and may be anything.
namespace vesk::selectionbytes {

enum class Encoding {
    Utf8,
    Latin1,
};

/// What is not text in this encoding becomes U+FFFD. A U+FEFF at the beginning is kept: the encoding is
/// known, so it is a character of the text, not a mark.
[[nodiscard]] QString text(const QByteArray &bytes, Encoding encoding);

/// A list of atoms; a last one that is cut is left out.
[[nodiscard]] QList<xcb_atom_t> atoms(const QByteArray &bytes);

} // namespace vesk::selectionbytes
