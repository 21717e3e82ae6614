// SPDX-License-Identifier: MIT
#include "notes/storeadvice.h"

#include "notes/copycontents.h"
#include "notes/restoringcommand.h"
#include "notes/storefile.h"
#include "notes/storegenerations.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

StoreAdvice StoreAdvice::on(const QString &store, StoreFault fault, Date now)
{
    if (fault != StoreFault::Damaged && fault != StoreFault::Missing)
        return {};
    const QString path = StoreFile(store).path();
    const StoreGenerations generations(path);
    const QList<QString> copies = generations.found();
    if (copies.isEmpty())
        return {};
    const QString anew =
        tr("To start without notes instead, move the files “%1*” and what is left of the store "
           "to another folder.")
            .arg(generations.newest());
    const auto sound =
        std::ranges::find_if(copies, [](const QString &copy) { return CopyContents::read(copy).isSound; });
    if (sound == copies.end())
        return {.message = tr("The copy of your notes, “%1”, cannot be read either.").arg(copies.first())
                           + u"\n\n"_s + anew};
    const QFileInfo copy(*sound);
    const QString date = QLocale().toString(copy.lastModified(), QLocale::LongFormat);
    return {.message =
                tr("There is a copy of your notes, made on %1: “%2”.").arg(date, copy.filePath()) + u"\n\n"_s
                + anew + u"\n\n"_s
                + tr("To use the copy, run this command in a terminal and start Vesk again. What is left of "
                     "the store is kept in the folder “damaged” beside it."),
            .command = restoringCommand(path, copy.filePath(), now)};
}

} // namespace vesk
