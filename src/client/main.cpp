// SPDX-License-Identifier: MIT
#include "client/client.h"
#include "platform/freedesktop/coredumps.h"
#include "translations/translation.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    constexpr int kWrongUse = 2;
    vesk::forbidCoreDumps();
    const QCoreApplication program(argc, argv);
    QCoreApplication::setApplicationName(u"Vesk"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VESK_VERSION));
    const vesk::Translation translation;
    const vesk::ParsedCommandLine parsed = vesk::parseCommandLine(QCoreApplication::arguments().mid(1));
    if (!parsed.command) {
        //: After a sentence that says what is wrong with a command line.
        vesk::sayError(parsed.error + u' ' + QCoreApplication::translate("main", "See: vesk --help"));
        return kWrongUse;
    }
    const QString app = QCoreApplication::applicationDirPath() + u'/' + QStringLiteral(VESK_APP_FROM_BIN);
    const int status = vesk::Client(QDir::cleanPath(app)).run(*parsed.command);
    // Exit without destroying static objects: Qt's bus thread may still be handling a message, whose types
    // would be gone by then, and it would print warnings on the terminal.
    std::fflush(nullptr);
    std::_Exit(status);
}
