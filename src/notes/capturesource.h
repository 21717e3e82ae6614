// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace vesk {

/// Where a captured text came from.
struct CaptureSource
{
    /// Display name of the application.
    QString app;
    std::optional<QString> bundleID;
    /// Title of the window.
    std::optional<QString> title;
    /// Address of the page, from a browser; text, not parsed.
    std::optional<QString> url;

    friend bool operator==(const CaptureSource &, const CaptureSource &) = default;
};

} // namespace vesk
