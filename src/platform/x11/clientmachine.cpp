// SPDX-License-Identifier: MIT
#include "platform/x11/clientmachine.h"

#include <QString>

namespace vesk {

namespace {

bool isWithoutDomain(const QString &name, const QString &full)
{
    return !name.isEmpty() && full.startsWith(name + u'.', Qt::CaseInsensitive);
}

} // namespace

bool isOwnMachine(const QString &client, const QString &own)
{
    return client.isEmpty() || client.compare(QLatin1StringView("localhost"), Qt::CaseInsensitive) == 0
           || client.compare(own, Qt::CaseInsensitive) == 0 || isWithoutDomain(client, own)
           || isWithoutDomain(own, client);
}

std::optional<qint64> processOfClient(std::optional<qint64> connected, std::optional<qint64> stated,
                                      bool isOwnMachine)
{
    if (connected)
        return connected;
    return isOwnMachine && stated && *stated > 0 ? stated : std::nullopt;
}

} // namespace vesk
