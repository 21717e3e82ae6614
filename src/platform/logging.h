// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

/// What each layer reports about the steps of a command, for tracing. Off by default;
/// `QT_LOGGING_RULES="vesk.*.debug=true"` turns it on. A line may hold counts, sizes, outcomes and process
/// identifiers, but never a note, selected text, a window title or an address.
namespace vesk {

Q_DECLARE_LOGGING_CATEGORY(appLog)
Q_DECLARE_LOGGING_CATEGORY(captureLog)
Q_DECLARE_LOGGING_CATEGORY(freedesktopLog)
Q_DECLARE_LOGGING_CATEGORY(inputLog)
Q_DECLARE_LOGGING_CATEGORY(notesLog)
Q_DECLARE_LOGGING_CATEGORY(panelLog)
Q_DECLARE_LOGGING_CATEGORY(servicesLog)
Q_DECLARE_LOGGING_CATEGORY(x11Log)

} // namespace vesk
