// SPDX-License-Identifier: MIT
#pragma once

#include "platform/defaults.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>

namespace vesk {

/// The user's settings in an INI file, under [General]. Notices changes by other processes.
class IniDefaults final : public QObject, public Defaults
{
    Q_OBJECT

public:
    /// `/Vesk/Vesk.conf`.
    [[nodiscard]] static QString standardPath();

    explicit IniDefaults(QString path);

    [[nodiscard]] bool boolForKey(const QString &key) const override;
    void setBool(bool value, const QString &key) override;
    [[nodiscard]] std::optional<int> intForKey(const QString &key) const override;
    void setInt(int value, const QString &key) override;
    /// Whether the last value that was set has been written to the file.
    [[nodiscard]] bool isWritable() const { return m_isWritable; }

Q_SIGNALS:
    /// Emitted when another process has written the file and at least one value differs.
    void changedOutside();

private:
    /// The values by key, as written in the file.
    using Values = QHash<QString, QString>;

    void set(const QString &value, const QString &key);
    [[nodiscard]] Values readFile() const;
    void watch();
    void reload();

    QString m_path;
    Values m_values;
    bool m_isWritable = true;
    QFileSystemWatcher m_watcher;
};

} // namespace vesk
