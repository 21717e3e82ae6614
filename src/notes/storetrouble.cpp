// SPDX-License-Identifier: MIT
#include "notes/storetrouble.h"

#include "notes/storefolder.h"

#include <QRegularExpression>

#include <sqlite3.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using Kind = StoreTrouble::Kind;

Kind kindOf(int systemError)
{
    switch (systemError) {
    case ENOSPC:
        return Kind::DiskFull;
    case EDQUOT:
        return Kind::QuotaUsedUp;
    case EROFS:
        return Kind::ReadOnly;
    case EACCES:
    case EPERM:
        return Kind::NotAllowed;
    default:
        return Kind::Other;
    }
}

/// For codes that only say that the system refused something.
StoreTrouble ofSystem(int systemError, Kind otherwise, const QString &message, const QString &folder)
{
    int error = systemError;
    // SQLite does not always keep the system's error, especially for its shared memory.
    if (kindOf(error) == Kind::Other) {
        const int tried = storefolder::tryWriting(folder);
        error = tried != 0 ? tried : error;
    }
    const Kind kind = kindOf(error);
    if (kind == Kind::Other)
        return {.kind = otherwise,
                .detail = error == 0 ? message : message + u": "_s + qt_error_string(error)};
    return {.kind = kind, .detail = qt_error_string(error)};
}

} // namespace

StoreTrouble StoreTrouble::of(int code, const QString &message, int systemError, const QString &folder)
{
    constexpr int kPrimary = 0xFF;
    switch (code & kPrimary) {
    case SQLITE_NOTADB:
        return {.kind = Kind::NotADatabase, .detail = message};
    case SQLITE_CORRUPT:
        return {.kind = Kind::Damaged, .detail = message};
    case SQLITE_ERROR:
        // A table or column is missing.
        if (message.startsWith("no such "_L1) || message.contains("has no column"_L1))
            return {.kind = Kind::Damaged, .detail = message};
        return {.kind = Kind::Other, .detail = message};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {.kind = Kind::InUse, .detail = message};
    case SQLITE_FULL:
        return {.kind = Kind::DiskFull, .detail = message};
    case SQLITE_READONLY:
        if (code == SQLITE_READONLY_DBMOVED)
            return {.kind = Kind::Lost, .detail = message};
        return ofSystem(systemError, Kind::ReadOnly, message, folder);
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return ofSystem(systemError, Kind::Other, message, folder);
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
        return {.kind = Kind::RecordRefused, .detail = message};
    default:
        return {.kind = Kind::Other, .detail = message};
    }
}

StoreTrouble StoreTrouble::ofCheck(const QString &report, const QString &folder)
{
    static const QRegularExpression kUnread(u"(?:error code[= ](\\d+)|failed to get page)"_s);
    const QRegularExpressionMatch match = kUnread.match(report);
    if (!match.hasMatch())
        return {.kind = Kind::Damaged, .detail = report};
    const int code = match.hasCaptured(1) ? match.captured(1).toInt() : SQLITE_IOERR_READ;
    return of(code, QString::fromUtf8(sqlite3_errstr(code)), 0, folder);
}

} // namespace vesk
