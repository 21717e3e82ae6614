// SPDX-License-Identifier: MIT
#pragma once

#include "platform/defaults.h"

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>

namespace vesk {

/// The user's choices in an INI file, under [General]. Tells when another process has changed it.
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
    /// Whether the last choice that was set has reached the file.
    [[nodiscard]] bool isWritable() const { return m_isWritable; }

Q_SIGNALS:
    /// The file was written by somebody else, and at least one value differs.
    void changedOutside();

private:
    /// What the keys stand for, as the file has it.
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
