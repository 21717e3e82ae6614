// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace vesk {

/// The file in which the user can choose key combinations. Vesk only reads it.
class KeysFile final : public QObject
{
    Q_OBJECT

public:
    /// `$XDG_CONFIG_HOME/Vesk/Keys.conf`.
    [[nodiscard]] static QString standardPath();
    /// Returns the content of the file; empty if there is none.
    [[nodiscard]] static QString read(const QString &path);

    /// Starts watching the file, which need not exist yet.
    explicit KeysFile(QString path);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] const QString &text() const { return m_text; }

Q_SIGNALS:
    /// Emitted when the text has changed, once the change is complete: editors write a file in parts, or
    /// remove it and put another in its place.
    void changed();

private:
    void watch();
    void reload();

    QString m_path;
    QString m_text;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
};

} // namespace vesk
