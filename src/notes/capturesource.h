// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace vesk {

/// Where a captured text came from.
struct CaptureSource
{
    /// The application's display name.
    QString app;
    std::optional<QString> bundleID;
    /// The window's title.
    std::optional<QString> title;
    /// The address of the page if the application is a browser; not parsed or validated.
    std::optional<QString> url;

    friend bool operator==(const CaptureSource &, const CaptureSource &) = default;
};

} // namespace vesk
