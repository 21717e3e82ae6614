// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace vesk {

/// Vesk's store as it is in the file, read from outside Vesk.
class NotesFile final
{
public:
    /// A row: column to value, as text.
    using Row = QMap<QString, QString>;

    explicit NotesFile(QString path);

    /// All notes, oldest first; nullopt if the file does not exist or cannot be read.
    [[nodiscard]] std::optional<QList<Row>> notes() const;

    /// All prompts, likewise.
    [[nodiscard]] std::optional<QList<Row>> prompts() const;

    /// The notes' texts in the same order; empty if the file cannot be read.
    [[nodiscard]] QStringList texts() const;

    /// The prompts' texts, oldest first; empty if the file cannot be read.
    [[nodiscard]] QStringList promptTexts() const;

    /// "ok", or what SQLite found wrong.
    [[nodiscard]] QString integrity() const;

    /// Marks the store as written by a much later version of Vesk. Returns false if the file cannot be
    /// written.
    [[nodiscard]] bool raiseSchemaVersion();

    [[nodiscard]] const QString &path() const { return m_path; }

private:
    [[nodiscard]] std::optional<QList<Row>> rowsOf(const char *table) const;

    QString m_path;
};

} // namespace vesk
