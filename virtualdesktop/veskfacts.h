// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

namespace vesk {

/// The hub ignores a second capture for two seconds.
constexpr std::chrono::milliseconds kCaptureGate{2100};

/// The shortest time that a finger stays on a key.
constexpr std::chrono::milliseconds kFinger{20};

const auto kPanel = QStringLiteral("Vesk");
const auto kQuickNote = QStringLiteral("Quick Note");
const auto kQuickChecklist = QStringLiteral("Quick Checklist");
const auto kSaved = QStringLiteral("Saved to Vesk");
const auto kAlready = QStringLiteral("Already in Vesk");
const auto kNotSaved = QStringLiteral("Not saved yet, Vesk keeps trying");

} // namespace vesk
