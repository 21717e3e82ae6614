// SPDX-License-Identifier: MIT
#include "virtualdesktop/notesfile.h"

#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>

namespace vesk {

namespace {

constexpr int kBusyMilliseconds = 2000;

SQLite::Database openToRead(const QString &path)
{
    return {path.toStdString(), SQLite::OPEN_READONLY, kBusyMilliseconds};
}

} // namespace

NotesFile::NotesFile(QString path)
    : m_path(std::move(path))
{
}

std::optional<QList<NotesFile::Row>> NotesFile::notes() const
{
    return rowsOf("Note");
}

std::optional<QList<NotesFile::Row>> NotesFile::prompts() const
{
    return rowsOf("Prompt");
}

std::optional<QList<NotesFile::Row>> NotesFile::rowsOf(const char *table) const
{
    try {
        const SQLite::Database database = openToRead(m_path);
        SQLite::Statement query(database,
                                std::string("SELECT * FROM ") + table + " ORDER BY createdAt, rowid");
        QList<Row> rows;
        while (query.executeStep()) {
            Row row;
            for (int index = 0; index < query.getColumnCount(); ++index) {
                row.insert(QString::fromUtf8(query.getColumnName(index)),
                           QString::fromStdString(query.getColumn(index).getString()));
            }
            rows.append(row);
        }
        return rows;
    } catch (const SQLite::Exception &) {
        return std::nullopt;
    }
}

QStringList NotesFile::texts() const
{
    QStringList texts;
    for (const Row &row : notes().value_or(QList<Row>()))
        texts.append(row.value(QStringLiteral("text")));
    return texts;
}

QStringList NotesFile::promptTexts() const
{
    QStringList texts;
    for (const Row &row : prompts().value_or(QList<Row>()))
        texts.append(row.value(QStringLiteral("text")));
    return texts;
}

QString NotesFile::integrity() const
{
    try {
        SQLite::Database database = openToRead(m_path);
        return QString::fromStdString(database.execAndGet("PRAGMA integrity_check").getString());
    } catch (const SQLite::Exception &error) {
        return QString::fromUtf8(error.what());
    }
}

bool NotesFile::raiseSchemaVersion()
{
    try {
        SQLite::Database database(m_path.toStdString(), SQLite::OPEN_READWRITE, kBusyMilliseconds);
        const int version = database.execAndGet("PRAGMA user_version").getInt();
        database.exec("PRAGMA user_version = " + std::to_string(version + 1000));
        return true;
    } catch (const SQLite::Exception &) {
        return false;
    }
}

} // namespace vesk
