// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

class QString;

namespace vesk {

/// Returns whether `client`, the WM_CLIENT_MACHINE of a window, names this machine, whose name is `own`. An
/// empty `client` counts as this machine. Either name may lack the domain.
[[nodiscard]] bool isOwnMachine(const QString &client, const QString &own);

/// Returns the process of a window. `connected` is the process at the other end of the connection, according
/// to the server; `stated` is _NET_WM_PID, which is only valid on the program's own machine. Nullopt if it is
/// not known.
[[nodiscard]] std::optional<qint64> processOfClient(std::optional<qint64> connected,
                                                    std::optional<qint64> stated, bool isOwnMachine);

} // namespace vesk
