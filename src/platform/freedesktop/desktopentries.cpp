// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktopentries.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// Among several matches, prefers the one named like the class, then one shown in menus, then the first by
/// name.
bool isBetter(const DesktopEntry &a, const DesktopEntry &b, const QString &windowClass)
{
    const bool aHasName = a.id.compare(windowClass, Qt::CaseInsensitive) == 0;
    const bool bHasName = b.id.compare(windowClass, Qt::CaseInsensitive) == 0;
    if (aHasName != bHasName)
        return aHasName;
    if (a.isHidden != b.isHidden)
        return b.isHidden;
    return a.id < b.id;
}

template <typename Predicate>
const DesktopEntry *best(const QHash<QString, DesktopEntry> &entries, const QString &name, Predicate fits)
{
    const DesktopEntry *found = nullptr;
    for (const DesktopEntry &entry : entries) {
        if (fits(entry) && (!found || isBetter(entry, *found, name)))
            found = &entry;
    }
    return found;
}

} // namespace

DesktopEntries::DesktopEntries()
    : DesktopEntries(QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"applications"_s,
                                               QStandardPaths::LocateDirectory))
{
}

DesktopEntries::DesktopEntries(QStringList folders)
    : m_folders(std::move(folders))
{
}

const DesktopEntry *DesktopEntries::find(const QString &id) const
{
    load();
    const auto entry = m_entries.constFind(id);
    return entry == m_entries.cend() ? nullptr : &*entry;
}

const DesktopEntry *DesktopEntries::match(const WindowIdentity &window) const
{
    load();
    // An application may set a GTK identifier that no file exists for; only use it if one does.
    if (const DesktopEntry *entry = find(window.gtkApplicationId))
        return entry;
    const QString names[] = {window.className, window.instanceName};
    for (const QString &name : names) {
        if (const DesktopEntry *entry = matchStartupClass(name))
            return entry;
    }
    for (const QString &name : names) {
        if (name.isEmpty())
            continue;
        const auto isNamed = [&name](const DesktopEntry &entry) {
            return entry.id.compare(name, Qt::CaseInsensitive) == 0;
        };
        if (const DesktopEntry *entry = best(m_entries, name, isNamed))
            return entry;
        const auto endsInName = [&name](const DesktopEntry &entry) {
            return entry.id.section(u'.', -1).compare(name, Qt::CaseInsensitive) == 0;
        };
        if (const DesktopEntry *entry = best(m_entries, name, endsInName))
            return entry;
    }
    return matchExecutable(window.executableName);
}

QIcon DesktopEntries::icon(const QString &id) const
{
    const DesktopEntry *entry = find(id);
    if (!entry || entry->icon.isEmpty())
        return {};
    return QFileInfo(entry->icon).isAbsolute() ? QIcon(entry->icon) : QIcon::fromTheme(entry->icon);
}

bool DesktopEntries::launch(const QString &id) const
{
    const DesktopEntry *entry = find(id);
    QStringList command = entry ? entry->command() : QStringList();
    if (command.isEmpty())
        return false;
    const QString program = command.takeFirst();
    return QProcess::startDetached(program, command);
}

void DesktopEntries::load() const
{
    if (m_isLoaded)
        return;
    m_isLoaded = true;
    for (const QString &folder : m_folders)
        loadFolder(folder);
}

void DesktopEntries::loadFolder(const QString &folder) const
{
    const QDir root(folder);
    QDirIterator files(folder, {u"*.desktop"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QString id = root.relativeFilePath(path).replace(u'/', u'-');
        id.chop(qsizetype(sizeof ".desktop") - 1);
        if (m_entries.contains(id))
            continue;
        if (const std::optional<DesktopEntry> entry = DesktopEntry::read(path, id))
            m_entries.insert(id, *entry);
    }
}

const DesktopEntry *DesktopEntries::matchStartupClass(const QString &windowClass) const
{
    if (windowClass.isEmpty())
        return nullptr;
    return best(m_entries, windowClass, [&windowClass](const DesktopEntry &entry) {
        return entry.startupWMClass.compare(windowClass, Qt::CaseInsensitive) == 0;
    });
}

const DesktopEntry *DesktopEntries::matchExecutable(const QString &executableName) const
{
    if (executableName.isEmpty())
        return nullptr;
    return best(m_entries, executableName, [&executableName](const DesktopEntry &entry) {
        const QStringList command = entry.command();
        return !command.isEmpty() && QFileInfo(command.first()).fileName() == executableName;
    });
}

} // namespace vesk
