// SPDX-License-Identifier: MIT
#include "app/storefailure.h"

#include "notes/storeadvice.h"

namespace vesk {

using namespace Qt::StringLiterals;

MessageWindow::Content describeStoreFailure(const NotesStore::OpenResult &opened, const QString &path,
                                            Date now)
{
    MessageWindow::Content content{.heading = QObject::tr("Vesk cannot start"),
                                   .message =
                                       QObject::tr("Could not open the notes store: %1").arg(opened.error),
                                   .acceptLabel = QObject::tr("Quit"),
                                   .rejectLabel = {}};
    const StoreAdvice advice = StoreAdvice::on(path, opened.fault, now);
    if (!advice.message.isEmpty())
        content.message += u"\n\n"_s + advice.message;
    content.details = advice.command;
    return content;
}

} // namespace vesk
