// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <source_location>

/// The fuzzer calls this for each input.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace vesk {

/// Aborts if `isTrue` is false, which is how the fuzzer detects a fault.
inline void check(bool isTrue, const std::source_location &place = std::source_location::current())
{
    if (isTrue)
        return;
    std::fprintf(stderr, "ERROR: %s:%u does not hold\n", place.file_name(), unsigned(place.line()));
    std::abort();
}

[[nodiscard]] inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

/// Arbitrary UTF-16 units, including lone surrogates.
[[nodiscard]] inline QString unitsOf(const uint8_t *data, size_t size)
{
    QString units(static_cast<qsizetype>(size / sizeof(char16_t)), Qt::Uninitialized);
    if (!units.isEmpty())
        std::memcpy(units.data(), data, static_cast<size_t>(units.size()) * sizeof(char16_t));
    return units;
}

} // namespace vesk
