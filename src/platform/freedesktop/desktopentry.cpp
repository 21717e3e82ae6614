// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktopentry.h"

#include <QFile>
#include <QHash>
#include <QLocale>
#include <QProcess>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// The keys of the main group; later groups describe the entry's actions.
QHash<QString, QString> readMainGroup(QIODevice &file)
{
    QHash<QString, QString> keys;
    bool isInGroup = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'[')) {
            if (isInGroup)
                break;
            isInGroup = line == "[Desktop Entry]"_L1;
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (isInGroup && equals > 0 && !line.startsWith(u'#'))
            keys.insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return keys;
}

/// The most specific translation for the user's language: de_AT, then de, then the untranslated text.
QString localized(const QHash<QString, QString> &keys, const QString &key)
{
    const QString language = QLocale().name();
    const QString candidates[] = {language, language.section(u'_', 0, 0)};
    for (const QString &candidate : candidates) {
        const auto found = keys.constFind(key + u'[' + candidate + u']');
        if (found != keys.cend())
            return *found;
    }
    return keys.value(key);
}

bool isTrue(const QHash<QString, QString> &keys, const QString &key)
{
    return keys.value(key) == "true"_L1;
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::read(const QString &path, const QString &id)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? read(file, id) : std::nullopt;
}

std::optional<DesktopEntry> DesktopEntry::read(QIODevice &file, const QString &id)
{
    const QHash<QString, QString> keys = readMainGroup(file);
    if (keys.value(u"Type"_s) != "Application"_L1 || isTrue(keys, u"Hidden"_s))
        return std::nullopt;
    return DesktopEntry{
        .id = id,
        .name = localized(keys, u"Name"_s),
        .icon = localized(keys, u"Icon"_s),
        .exec = keys.value(u"Exec"_s),
        .startupWMClass = keys.value(u"StartupWMClass"_s),
        .isHidden = isTrue(keys, u"NoDisplay"_s),
        .categories = keys.value(u"Categories"_s).split(u';', Qt::SkipEmptyParts),
    };
}

QStringList DesktopEntry::command() const
{
    QStringList words;
    const QStringList split = QProcess::splitCommand(exec);
    for (const QString &word : split) {
        // Field codes stand for files or addresses; there are none here.
        if (word.size() == 2 && word.startsWith(u'%') && word != "%%"_L1)
            continue;
        words.append(QString(word).replace("%%"_L1, "%"_L1));
    }
    return words;
}

} // namespace vesk
