// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

class QString;

namespace vesk {

/// Whether `WM_CLIENT_MACHINE` of a window names this machine, which calls itself `own`. A window that does
/// not say where its program runs counts as one of this machine. One of the two names may lack the domain.
[[nodiscard]] bool isOwnMachine(const QString &client, const QString &own);

/// The process of a window. `connected` is what the server knows of the connection, `stated` is
/// `_NET_WM_PID`, which means nothing on any machine but the program's own. Nullopt if it cannot be told.
[[nodiscard]] std::optional<qint64> processOfClient(std::optional<qint64> connected,
                                                    std::optional<qint64> stated, bool isOwnMachine);

} // namespace vesk
