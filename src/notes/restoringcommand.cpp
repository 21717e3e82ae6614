// SPDX-License-Identifier: MIT
#include "notes/restoringcommand.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

[[nodiscard]] QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', u"'\\''"_s) + u'\'';
}

/// Its arguments are the folder, the names of the store and the copy, and a name for this occasion. The
/// folder for the old files gets its final name last, which tells a second run that there is nothing left to
/// do.
constexpr auto kScript = R"(cd "$1"; [ -e "damaged/$4" ] && exit; )"
                         R"(cp "$3" "$2.restored" || { rm -f "$2.restored"; exit 1; }; )"
                         R"(sync "$2.restored"; mkdir -p "damaged/$4.part"; )"
                         R"(for f in "$2" "$2-wal" "$2-shm" "$2-journal"; do if [ -e "$f" ]; )"
                         R"(then mv --backup=numbered "$f" "damaged/$4.part/"; fi; done; )"
                         R"(mv "$2.restored" "$2"; mv "damaged/$4.part" "damaged/$4")";

} // namespace

QString restoringCommand(const QString &store, const QString &copy, Date now)
{
    const QFileInfo file(store);
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(now.time_since_epoch());
    const QString time = QDateTime::fromMSecsSinceEpoch(milliseconds.count()).toString(u"yyyyMMdd-hhmmss"_s);
    // Run by sh, whichever shell the user pastes it into.
    return u"sh -ec '%1' sh %2 %3 %4 %5"_s.arg(QLatin1StringView(kScript), quoted(file.path()),
                                               quoted(file.fileName()), quoted(QFileInfo(copy).fileName()),
                                               time);
}

} // namespace vesk
