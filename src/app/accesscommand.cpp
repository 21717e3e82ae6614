// SPDX-License-Identifier: MIT
#include "app/accesscommand.h"

#include "platform/freedesktop/consent.h"
#include "platform/freedesktop/inidefaults.h"

#include <QCoreApplication>
#include <QTextStream>

namespace vesk {

using namespace Qt::StringLiterals;

int runAccessCommand(const QStringList &arguments)
{
    constexpr int kWrongUse = 2;
    QTextStream output(stdout);
    QTextStream errors(stderr);
    const QString action = arguments.value(0);
    const bool isKnown = action == "allow"_L1 || action == "deny"_L1 || action == "status"_L1;
    if (arguments.size() != 1 || !isKnown) {
        errors << QCoreApplication::translate("vesk::AccessCommand", "Usage: %1")
                      .arg(u"vesk access allow|deny|status"_s)
               << '\n';
        return kWrongUse;
    }
    IniDefaults defaults(IniDefaults::standardPath());
    Consent consent(defaults);
    if (action == "status"_L1) {
        output << (consent.isGiven() ? QCoreApplication::translate("vesk::AccessCommand", "allowed")
                                     : QCoreApplication::translate("vesk::AccessCommand", "not allowed"))
               << '\n';
        return consent.isGiven() ? 0 : 1;
    }
    consent.setGiven(action == "allow"_L1);
    if (!defaults.isWritable()) {
        errors << QCoreApplication::translate("vesk::AccessCommand",
                                              "The setting could not be written to %1.")
                      .arg(IniDefaults::standardPath())
               << '\n';
        return 1;
    }
    return 0;
}

} // namespace vesk
