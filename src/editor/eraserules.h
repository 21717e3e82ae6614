// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// How much of a text Backspace and Delete erase. Positions are UTF-16 units.
///
/// Delete removes what the user sees as one character, with all that belongs to it: the whole extended
/// grapheme cluster.
///
/// Backspace takes back what was entered last, so it often removes less:
/// - an emoji goes as a whole, with its skin tone, the persons and things joined to it, or its keycap, and
///   so do both letters of a flag;
/// - a line break of another system (CR LF) goes as a whole;
/// - a variation selector goes with the character whose form it selects, as it is not seen by itself;
/// - of everything else the last code point goes, so that an accent, a Hebrew point, a vowel sign, or a
///   Hangul jamo can be corrected without its base.
namespace vesk::eraserules {

/// The start of the text that Backspace removes at `caret`. Equal to `caret` at the start of the text.
[[nodiscard]] qsizetype backspaceStart(QStringView text, qsizetype caret);
/// The end of the text that Delete removes at `caret`. Equal to `caret` at the end of the text.
[[nodiscard]] qsizetype deleteEnd(QStringView text, qsizetype caret);

} // namespace vesk::eraserules
