// SPDX-License-Identifier: MIT
#include "platform/logging.h"

namespace vesk {

Q_LOGGING_CATEGORY(appLog, "vesk.app", QtInfoMsg)
Q_LOGGING_CATEGORY(captureLog, "vesk.capture", QtInfoMsg)
Q_LOGGING_CATEGORY(freedesktopLog, "vesk.freedesktop", QtInfoMsg)
Q_LOGGING_CATEGORY(inputLog, "vesk.input", QtInfoMsg)
Q_LOGGING_CATEGORY(notesLog, "vesk.notes", QtInfoMsg)
Q_LOGGING_CATEGORY(panelLog, "vesk.panel", QtInfoMsg)
Q_LOGGING_CATEGORY(servicesLog, "vesk.services", QtInfoMsg)
Q_LOGGING_CATEGORY(x11Log, "vesk.x11", QtInfoMsg)

} // namespace vesk
