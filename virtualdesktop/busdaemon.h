// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/childprocess.h"

#include <QTemporaryDir>

namespace vesk {

/// A message bus of the test's own. It ends with this object.
class BusDaemon final
{
public:
    /// A bus on which nothing is started that is asked for; null if it did not come up.
    [[nodiscard]] static std::unique_ptr<BusDaemon> start();

    [[nodiscard]] const QString &address() const { return m_address; }

private:
    BusDaemon() = default;

    QTemporaryDir m_folder;
    QString m_address;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace vesk
