// SPDX-License-Identifier: MIT
#pragma once

#include "notes/storeerror.h"

#include <QCoreApplication>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

namespace vesk {

/// The right to write the store: a lock on the file `Notes.lock` beside it, held as long as this object
/// lives. It is released when the process dies, and on a network file system it excludes other machines too.
/// The file stays; it says who held the lock last.
class StoreLock final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::StoreLock)

public:
    enum class Use {
        /// Held until the user quits.
        Session,
        /// Held briefly while a command adds something.
        Command,
    };
    struct Result
    {
        std::unique_ptr<StoreLock> lock;
        /// Why the lock could not be acquired.
        StoreError error = {};
    };

    /// Waits up to `patience` for another process to release the lock. If that process holds it for a
    /// session, waits no longer than the session may take to end.
    [[nodiscard]] static Result acquire(const QString &store, Use use, std::chrono::milliseconds patience);
    ~StoreLock();
    Q_DISABLE_COPY_MOVE(StoreLock)

    /// Whether the locked file still exists under its name.
    [[nodiscard]] bool isInPlace() const;
    /// The path of the store that the lock was acquired for.
    [[nodiscard]] const QString &store() const { return m_store; }
    [[nodiscard]] Use use() const { return m_use; }

private:
    struct Holder
    {
        qint64 process;
        QString host;
        Use use;
    };

    StoreLock(int descriptor, QString store, Use use)
        : m_descriptor(descriptor)
        , m_store(std::move(store))
        , m_use(use)
    {
    }

    [[nodiscard]] static QString pathFor(const QString &store);
    /// Creates the file if it is missing. Returns -1, with `errno` set, on failure.
    [[nodiscard]] static int openFile(const QString &path);
    /// Returns false, with `errno` set, on failure.
    [[nodiscard]] static bool tryLocking(int descriptor);
    [[nodiscard]] static std::optional<Holder> readHolder(int descriptor);
    [[nodiscard]] static StoreError describe(const QString &path, const std::optional<Holder> &holder);
    void writeHolder() const;

    int m_descriptor;
    QString m_store;
    Use m_use;
};

} // namespace vesk
