// SPDX-License-Identifier: MIT
#include "platform/freedesktop/inidefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace vesk {

namespace {

constexpr QFile::Permissions kForItsUser = QFile::ReadOwner | QFile::WriteOwner;

} // namespace

QString IniDefaults::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QStringLiteral("/Vesk/Vesk.conf");
}

IniDefaults::IniDefaults(QString path)
    : m_path(std::move(path))
    , m_values(readFile())
{
    watch();
    // The file is replaced rather than written in place, so watch the folder too.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &IniDefaults::reload);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &IniDefaults::reload);
}

bool IniDefaults::boolForKey(const QString &key) const
{
    return QVariant(m_values.value(key)).toBool();
}

void IniDefaults::setBool(bool value, const QString &key)
{
    set(QVariant(value).toString(), key);
}

std::optional<int> IniDefaults::intForKey(const QString &key) const
{
    bool isNumber = false;
    const int value = m_values.value(key).toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

void IniDefaults::setInt(int value, const QString &key)
{
    set(QString::number(value), key);
}

void IniDefaults::set(const QString &value, const QString &key)
{
    // Write a key that was never set even if the value is false: it records that the user has decided.
    if (m_values.contains(key) && m_values.value(key) == value)
        return;
    m_values.insert(key, value);
    // QSettings does not change the permissions of an existing file.
    QFile file(m_path);
    if (file.open(QIODevice::NewOnly | QIODevice::WriteOnly, kForItsUser))
        file.setPermissions(kForItsUser);
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    m_isWritable = settings.status() == QSettings::NoError;
    watch();
}

IniDefaults::Values IniDefaults::readFile() const
{
    Values values;
    if (!QFileInfo::exists(m_path))
        return values;
    const QSettings settings(m_path, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        values.insert(key, settings.value(key).toString());
    return values;
}

void IniDefaults::watch()
{
    const QString folder = QFileInfo(m_path).path();
    if (!QFileInfo::exists(folder)) {
        QDir().mkpath(QFileInfo(folder).path());
        // Set twice, because the process's umask removes some of the permissions at first.
        constexpr auto kRights = kForItsUser | QFile::ExeOwner;
        if (QDir().mkdir(folder, kRights))
            QFile::setPermissions(folder, kRights);
    }
    if (!m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
    if (QFile::exists(m_path) && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
}

void IniDefaults::reload()
{
    watch();
    // A file that has just disappeared is about to be replaced; its values stay valid until then.
    if (!QFile::exists(m_path))
        return;
    Values values = readFile();
    if (values == m_values)
        return;
    m_values = std::move(values);
    Q_EMIT changedOutside();
}

} // namespace vesk
