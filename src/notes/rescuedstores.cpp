// SPDX-License-Identifier: MIT
#include "notes/rescuedstores.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vesk::rescuedstores {

namespace {

QString pathOf(const QString &store, int number)
{
    const QFileInfo file(store);
    const QString infix = number == 1 ? QString() : u".%1"_s.arg(number);
    return file.path() + u'/' + file.completeBaseName() + u".rescued"_s + infix + u".store"_s;
}

int freeNumber(const QString &store)
{
    int number = 1;
    while (QFileInfo::exists(pathOf(store, number)))
        ++number;
    return number;
}

} // namespace

QString nextPath(const QString &store)
{
    return pathOf(store, freeNumber(store));
}

QString latest(const QString &store)
{
    const int number = freeNumber(store);
    return number == 1 ? QString() : pathOf(store, number - 1);
}

} // namespace vesk::rescuedstores
