// SPDX-License-Identifier: MIT
#pragma once

#include "platform/updates.h"

namespace vesk {

/// A package service with results that a test sets.
class MemoryUpdates final : public Updates
{
    Q_OBJECT

public:
    [[nodiscard]] bool canCheckForUpdates() const override { return m_canCheck && !m_isChecking; }
    void checkForUpdates() override;

    void setCanCheck(bool canCheck);
    /// Finishes the running check.
    void finish(const Result &result);

private:
    bool m_canCheck = false;
    bool m_isChecking = false;
};

} // namespace vesk
