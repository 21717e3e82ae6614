// SPDX-License-Identifier: MIT
#pragma once

#include "notes/compacttext.h"
#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

#include <optional>

/// How the values of records are stored in columns. Internal to this layer.
namespace vesk::sqlvalues {

inline void bind(SQLite::Statement &statement, int index, const QString &text)
{
    // With an explicit length, so that a NUL does not end the text.
    statement.bind(index, text.toStdString());
}

inline void bind(SQLite::Statement &statement, int index, const QByteArray &utf8)
{
    statement.bind(index, utf8.toStdString());
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

[[nodiscard]] inline CompactText compactText(const SQLite::Column &column)
{
    const auto *data = static_cast<const char *>(column.getBlob());
    return CompactText::fromUtf8(QByteArrayView(data, column.getBytes()));
}

[[nodiscard]] inline QString text(const SQLite::Column &column)
{
    return compactText(column).toString();
}

[[nodiscard]] inline std::optional<QString> optionalText(const SQLite::Column &column)
{
    return column.isNull() ? std::nullopt : std::optional(text(column));
}

/// A null identity if the column does not hold one.
[[nodiscard]] inline RecordId id(const SQLite::Column &column)
{
    return QUuid::fromString(QLatin1String(column.getText(), column.getBytes()));
}

[[nodiscard]] inline Date date(const SQLite::Column &column)
{
    return Date{std::chrono::microseconds{column.getInt64()}};
}

} // namespace vesk::sqlvalues
