// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

#include <optional>

/// How the values of records stand in the columns of the store. Internal to this layer.
namespace vesk::sqlvalues {

inline void bind(SQLite::Statement &statement, int index, const QString &text)
{
    // By its length, so that a NUL does not end it.
    statement.bind(index, text.toStdString());
}

inline void bind(SQLite::Statement &statement, int index, const std::optional<QString> &text)
{
    if (text)
        bind(statement, index, *text);
    else
        statement.bind(index);
}

inline void bind(SQLite::Statement &statement, int index, const RecordId &id)
{
    bind(statement, index, id.toString(QUuid::WithoutBraces));
}

inline void bind(SQLite::Statement &statement, int index, Date date)
{
    statement.bind(index, static_cast<int64_t>(date.time_since_epoch().count()));
}

inline void bind(SQLite::Statement &statement, int index, bool value)
{
    statement.bind(index, value ? 1 : 0);
}

[[nodiscard]] inline QString text(const SQLite::Column &column)
{
    const auto *data = static_cast<const char *>(column.getBlob());
    const QByteArrayView utf8(data, column.getBytes());
    QString result = QString::fromUtf8(utf8);
    // Qt takes U+FEFF at the start for a byte order mark and drops it.
    if (utf8.startsWith("\xEF\xBB\xBF"))
        result.prepend(QChar(QChar::ByteOrderMark));
    return result;
}

[[nodiscard]] inline std::optional<QString> optionalText(const SQLite::Column &column)
{
    return column.isNull() ? std::nullopt : std::optional(text(column));
}

/// A null identity if the column holds none.
[[nodiscard]] inline RecordId id(const SQLite::Column &column)
{
    return QUuid::fromString(QLatin1String(column.getText(), column.getBytes()));
}

[[nodiscard]] inline Date date(const SQLite::Column &column)
{
    return Date{std::chrono::microseconds{column.getInt64()}};
}

} // namespace vesk::sqlvalues
