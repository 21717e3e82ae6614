// SPDX-License-Identifier: MIT
#include "client/keyslist.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QString spelt(const KeysReport::Key &key)
{
    if (key.state == "taken"_L1) {
        const QString holders = key.takenBy.join(u" or "_s);
        return u"taken by "_s + (holders.isEmpty() ? u"another program"_s : holders);
    }
    return key.state == "no-access"_L1 ? u"needs access"_s : key.state;
}

} // namespace

QByteArray keysAsLines(const KeysReport &report)
{
    constexpr size_t kColumns = 4;
    QList<std::array<QString, kColumns>> rows;
    std::array<qsizetype, kColumns> widths{};
    for (const KeysReport::Key &key : report.keys) {
        rows.append({key.keys.isEmpty() ? u"none"_s : key.keys, spelt(key), key.command, key.purpose});
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
        array.append(object);
    }
    return QJsonDocument(array).toJson();
}

} // namespace vesk
