// SPDX-License-Identifier: MIT
#pragma once

#include "platform/defaults.h"

#include <QHash>

namespace vesk {

/// Settings that last as long as the object.
class MemoryDefaults final : public Defaults
{
public:
    [[nodiscard]] bool boolForKey(const QString &key) const override;
    void setBool(bool value, const QString &key) override;
    [[nodiscard]] std::optional<int> intForKey(const QString &key) const override;
    void setInt(int value, const QString &key) override;

private:
    QHash<QString, bool> m_values;
    QHash<QString, int> m_numbers;
};

} // namespace vesk
