// SPDX-License-Identifier: MIT
#pragma once

#include "platform/updates.h"

namespace vesk {

/// An updater that finds nothing.
class MemoryUpdates final : public Updates
{
    Q_OBJECT

public:
    [[nodiscard]] bool canCheckForUpdates() const override { return m_canCheck; }
    void checkForUpdates() override;

    void setCanCheck(bool canCheck);
    [[nodiscard]] int checkCount() const { return m_checkCount; }

private:
    bool m_canCheck = false;
    int m_checkCount = 0;
};

} // namespace vesk
