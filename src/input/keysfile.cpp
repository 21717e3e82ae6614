// SPDX-License-Identifier: MIT
#include "input/keysfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// A change is complete when nothing has happened to the file for this long.
constexpr std::chrono::milliseconds kSettlingTime{150};

/// Far larger than any real file of keys.
constexpr qint64 kMaximumSize = qint64{64} << 10;

} // namespace

QString KeysFile::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/Vesk/Keys.conf"_s;
}

QString KeysFile::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(kMaximumSize)) : QString();
}

KeysFile::KeysFile(QString path)
    : m_path(std::move(path))
    , m_text(read(m_path))
{
    watch();
    m_settling.setSingleShot(true);
    m_settling.setInterval(kSettlingTime);
    connect(&m_settling, &QTimer::timeout, this, &KeysFile::reload);
    // The folder reports that the file appears or disappears, the file reports writes.
    const auto settle = [this] {
        watch();
        m_settling.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, settle);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, settle);
}

void KeysFile::watch()
{
    const QString folder = QFileInfo(m_path).path();
    QDir().mkpath(folder);
    if (!m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
    if (QFile::exists(m_path) && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
}

void KeysFile::reload()
{
    watch();
    QString text = read(m_path);
    if (text == m_text)
        return;
    m_text = std::move(text);
    Q_EMIT changed();
}

} // namespace vesk
