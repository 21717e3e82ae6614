// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace vesk {

/// The user's remembered choices.
class Defaults
{
public:
    virtual ~Defaults() = default;

    /// False if the key was never set.
    [[nodiscard]] virtual bool boolForKey(const QString &key) const = 0;

    /// Remembered across restarts; a choice that cannot be written holds until the program ends.
    virtual void setBool(bool value, const QString &key) = 0;

    /// Nothing if the key was never set, or to something that is not a whole number.
    [[nodiscard]] virtual std::optional<int> intForKey(const QString &key) const = 0;

    /// Remembered like a `setBool`.
    virtual void setInt(int value, const QString &key) = 0;
};

} // namespace vesk
