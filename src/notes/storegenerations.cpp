// SPDX-License-Identifier: MIT
#include "notes/storegenerations.h"

#include "notes/copycontents.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

[[nodiscard]] bool rename(const QString &from, const QString &to)
{
    // Unlike QFile::rename, this replaces an existing file.
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

StoreGenerations::StoreGenerations(const QString &store)
{
    const QFileInfo file(store);
    m_newest = file.path() + u'/' + file.completeBaseName() + u".copy"_s;
}

bool StoreGenerations::isFarFewer(qint64 records, qint64 before)
{
    constexpr qint64 kFew = 5;
    return 2 * records < before && before - records >= kFew;
}

QString StoreGenerations::nameOf(int number) const
{
    return number == 0 ? m_newest : u"%1.%2"_s.arg(m_newest).arg(number);
}

QList<int> StoreGenerations::numbers() const
{
    const QFileInfo newest(m_newest);
    QList<int> numbers;
    for (const QFileInfo &file : newest.dir().entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (file.size() == 0 || !file.fileName().startsWith(newest.fileName()))
            continue;
        const QString rest = file.fileName().mid(newest.fileName().size());
        bool isNumber = rest.startsWith(u'.');
        const int number = rest.isEmpty() ? 0 : QStringView(rest).mid(1).toInt(&isNumber);
        if (rest.isEmpty() || (isNumber && file.filePath() == nameOf(number)))
            numbers.append(number);
    }
    std::ranges::sort(numbers);
    return numbers;
}

QList<QString> StoreGenerations::found() const
{
    QList<QString> paths;
    for (const int number : numbers())
        paths.append(nameOf(number));
    return paths;
}

QList<int> StoreGenerations::superfluous(const QList<int> &numbers, qint64 records) const
{
    QList<int> result;
    // Counts the new copy.
    qsizetype kept = 1;
    for (const int number : numbers) {
        const CopyContents contents = CopyContents::read(nameOf(number));
        if (!contents.isReadable || isFarFewer(records, contents.records))
            continue;
        if (kept < kCount)
            ++kept;
        else
            result.append(number);
    }
    return result;
}

bool StoreGenerations::add(const QString &path, qint64 records) const
{
    QList<int> present = numbers();
    const QList<int> removed = superfluous(present, records);
    for (const int number : removed)
        present.removeOne(number);
    int free = 0;
    while (present.contains(free))
        ++free;
    // Each copy moves up one number, into the gap; a copy that is to be removed there is overwritten.
    for (int number = free; number > 0; --number) {
        if (!rename(nameOf(number - 1), nameOf(number)))
            return false;
    }
    if (!rename(path, m_newest))
        return false;
    for (const int number : removed) {
        if (number > free)
            QFile::remove(nameOf(number));
    }
    return true;
}

} // namespace vesk
