// SPDX-License-Identifier: MIT
#include "notes/copycontents.h"

#include "notes/schema.h"
#include "notes/storetrouble.h"

#include <QFileInfo>
#include <QUrl>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

namespace vesk {

CopyContents CopyContents::read(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const auto isDamage = [](const StoreTrouble &trouble) {
        return trouble.kind == StoreTrouble::Kind::Damaged
               || trouble.kind == StoreTrouble::Kind::NotADatabase;
    };
    // Immutable: nobody writes to a finished copy, and reading it must not leave companion files beside it.
    const QByteArray address = QUrl::fromLocalFile(path).toEncoded() + "?immutable=1";
    try {
        SQLite::Database connection(address.constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
        if (schema::applicationId(connection) != schema::kApplicationId
            || schema::version(connection) > schema::kVersion)
            return {};
        const std::string report = connection.execAndGet("PRAGMA integrity_check(1)").getString();
        if (report != "ok")
            return {.isReadable = isDamage(StoreTrouble::ofCheck(QString::fromStdString(report), folder))};
        return {.isSound = true, .records = schema::countRecords(connection)};
    } catch (const SQLite::Exception &error) {
        return {.isReadable = isDamage(StoreTrouble::of(error.getExtendedErrorCode(),
                                                        QString::fromUtf8(error.what()), 0, folder))};
    }
}

} // namespace vesk
