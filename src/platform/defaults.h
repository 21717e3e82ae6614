// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace vesk {

/// The user's settings.
class Defaults
{
public:
    virtual ~Defaults() = default;

    /// Returns false if the key was never set.
    [[nodiscard]] virtual bool boolForKey(const QString &key) const = 0;

    /// Kept across restarts. A value that cannot be written holds until the program exits.
    virtual void setBool(bool value, const QString &key) = 0;

    /// Returns nullopt if the key was never set or is not a whole number.
    [[nodiscard]] virtual std::optional<int> intForKey(const QString &key) const = 0;

    /// Kept like a value of `setBool`.
    virtual void setInt(int value, const QString &key) = 0;
};

} // namespace vesk
