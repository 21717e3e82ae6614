// SPDX-License-Identifier: MIT
#include "app/storefailure.h"

#include "notes/storecopy.h"

#include <QDateTime>
#include <QLocale>

namespace vesk {

using namespace Qt::StringLiterals;

MessageWindow::Content describeStoreFailure(const NotesStore::OpenResult &opened, const StoreCopy &copy)
{
    MessageWindow::Content content{.heading = QObject::tr("Vesk cannot start"),
                                   .message =
                                       QObject::tr("Could not open the notes store: %1").arg(opened.error),
                                   .acceptLabel = QObject::tr("Quit"),
                                   .rejectLabel = {}};
    const std::optional<Date> madeAt = copy.madeAt();
    if (!opened.isDamaged || !madeAt)
        return content;
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(madeAt->time_since_epoch());
    const QString date =
        QLocale().toString(QDateTime::fromMSecsSinceEpoch(milliseconds.count()), QLocale::LongFormat);
    content.message +=
        u"\n\n"_s
        + QObject::tr("There is a copy of your notes, made on %1: “%2”. To go on with it, run this command "
                      "in a terminal and start Vesk again. It keeps the damaged file in the folder "
                      "“damaged” beside it.")
              .arg(date, copy.path());
    content.details = copy.restoringCommand();
    return content;
}

} // namespace vesk
