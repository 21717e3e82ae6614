// SPDX-License-Identifier: MIT
#include "client/keyslist.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// The messages of this file.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vesk::KeysReport)
};

QString stateOf(const KeysReport::Key &key)
{
    if (key.state == "works"_L1)
        return Texts::tr("works");
    if (key.state == "off"_L1)
        return Texts::tr("off");
    if (key.state == "no-access"_L1)
        return Texts::tr("needs access");
    if (key.state != "taken"_L1)
        return Texts::tr("unknown");
    QString holders;
    for (const QString &name : key.takenBy)
        holders = holders.isEmpty() ? name : Texts::tr("%1 or %2").arg(holders, name);
    return holders.isEmpty() ? Texts::tr("taken by another program") : Texts::tr("taken by %1").arg(holders);
}

QString spelt(const KeysReport::Key &key)
{
    const QString state = stateOf(key);
    return key.notIn.isEmpty() ? state : Texts::tr("%1, not in %2").arg(state, key.notIn.join(u", "_s));
}

} // namespace

QByteArray keysAsLines(const KeysReport &report)
{
    constexpr size_t kColumns = 4;
    QList<std::array<QString, kColumns>> rows;
    std::array<qsizetype, kColumns> widths{};
    for (const KeysReport::Key &key : report.keys) {
        rows.append(
            {key.keys.isEmpty() ? Texts::tr("none") : key.keys, spelt(key), key.command, key.purpose});
        for (size_t i = 0; i < kColumns; ++i)
            widths.at(i) = std::max(widths.at(i), rows.last().at(i).size());
    }
    QString lines;
    for (const auto &row : std::as_const(rows)) {
        for (size_t i = 0; i + 1 < kColumns; ++i)
            lines += row.at(i).leftJustified(widths.at(i) + 2);
        lines += row.back() + u'\n';
    }
    return lines.toUtf8();
}

QByteArray keysAsJson(const KeysReport &report)
{
    QJsonArray array;
    for (const KeysReport::Key &key : report.keys) {
        QJsonObject object{
            {u"command"_s, key.command},
            {u"keys"_s, key.keys},
            {u"purpose"_s, key.purpose},
            {u"state"_s, key.state},
        };
        if (key.state == "taken"_L1)
            object.insert(u"takenBy"_s, QJsonArray::fromStringList(key.takenBy));
        if (!key.notIn.isEmpty())
            object.insert(u"notIn"_s, QJsonArray::fromStringList(key.notIn));
        array.append(object);
    }
    return QJsonDocument(array).toJson();
}

} // namespace vesk
