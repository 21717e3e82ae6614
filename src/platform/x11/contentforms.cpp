// SPDX-License-Identifier: MIT
#include "platform/x11/contentforms.h"

#include <algorithm>
#include <array>

namespace vesk::contentforms {

namespace {

/// TEXT stands for an encoding of the owner's choice, so only the owner can provide it.
constexpr std::array<QByteArrayView, 8> kProtocolTargets{
    "TARGETS", "TIMESTAMP",        "MULTIPLE",        "SAVE_TARGETS",
    "DELETE",  "INSERT_SELECTION", "INSERT_PROPERTY", "TEXT",
};

/// Unicode texts. Each can hold whatever plain text in any other encoding does.
constexpr std::array<QByteArrayView, 3> kUnicodeTexts{"UTF8_STRING", "text/plain;charset=utf-8",
                                                      "text/plain;charset=UTF-8"};
/// Targets that can be made from those, besides plain text in other encodings. The last one is useful only
/// within its own program.
constexpr std::array<QByteArrayView, 4> kMadeOfUnicode{"STRING", "COMPOUND_TEXT", "C_STRING",
                                                       "GTK_TEXT_BUFFER_CONTENTS"};

constexpr QByteArrayView kPicture = "image/png";
/// The formats that toolkits convert pictures into in addition. Formats that may contain animations (GIF,
/// WebP, AVIF), outlines (SVG) or layers are not listed: such a picture is more than its PNG.
constexpr std::array<QByteArrayView, 25> kMadeOfPicture{
    "image/bmp",
    "image/x-bmp",
    "image/x-MS-bmp",
    "image/x-ms-bmp",
    "image/x-win-bitmap",
    "image/jpeg",
    "image/jpg",
    "image/tiff",
    "image/tif",
    "image/x-icon",
    "image/x-ico",
    "image/ico",
    "image/icon",
    "image/cur",
    "image/icns",
    "image/vnd.microsoft.icon",
    "image/vnd.wap.wbmp",
    "image/x-portable-anymap",
    "image/x-portable-bitmap",
    "image/x-portable-graymap",
    "image/x-portable-pixmap",
    "image/x-xbitmap",
    "image/x-xpixmap",
    "application/ico",
    "application/x-qt-image",
};

bool contains(const auto &names, QByteArrayView name)
{
    return std::ranges::find(names, name) != names.end();
}

} // namespace

bool isContent(QByteArrayView target)
{
    return !contains(kProtocolTargets, target);
}

QByteArray sourceOf(const QByteArray &target, const QList<QByteArray> &offered)
{
    if (contains(kMadeOfPicture, target))
        return offered.contains(kPicture) ? kPicture.toByteArray() : QByteArray();
    const bool isPlainText = target == "text/plain" || target.startsWith("text/plain;")
                             || target == kUnicodeTexts.front() || contains(kMadeOfUnicode, target);
    if (!isPlainText)
        return {};
    const auto *const best =
        std::ranges::find_if(kUnicodeTexts, [&](QByteArrayView name) { return offered.contains(name); });
    // The best of them is not made from any other.
    return best == kUnicodeTexts.end() || *best == target ? QByteArray() : best->toByteArray();
}

} // namespace vesk::contentforms
