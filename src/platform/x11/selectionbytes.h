// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <xcb/xproto.h>

/// Interprets the bytes of a selection, which come from any program and can be anything.
namespace vesk::selectionbytes {

enum class Encoding {
    Utf8,
    Latin1,
};

/// Decodes a text. Invalid bytes become U+FFFD. A U+FEFF at the beginning is kept: since the encoding is
/// known, it is part of the text, not a byte order mark.
[[nodiscard]] QString text(const QByteArray &bytes, Encoding encoding);

/// Decodes a list of atoms. If the data is truncated, returns the complete ones.
[[nodiscard]] QList<xcb_atom_t> atoms(const QByteArray &bytes);

} // namespace vesk::selectionbytes
