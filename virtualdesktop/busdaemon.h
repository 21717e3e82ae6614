// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/childprocess.h"

#include <QTemporaryDir>

namespace vesk {

/// A separate message bus for a test. It ends with this object.
class BusDaemon final
{
public:
    /// A bus that activates no services; null if it did not start.
    [[nodiscard]] static std::unique_ptr<BusDaemon> start();

    [[nodiscard]] const QString &address() const { return m_address; }

private:
    BusDaemon() = default;

    QTemporaryDir m_folder;
    QString m_address;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace vesk
