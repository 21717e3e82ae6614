// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vesk {

/// The contents of a file; empty if it cannot be read.
[[nodiscard]] inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes a file, creating its folder. Returns whether both succeeded.
[[nodiscard]] inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
           && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace vesk
