// SPDX-License-Identifier: MIT
#include "input/keysreport.h"

#include "input/globalkeys.h"
#include "input/keynames.h"
#include "input/keysettings.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const QString kCommand = u"command"_s;
const QString kKeys = u"keys"_s;
const QString kPurpose = u"purpose"_s;
const QString kState = u"state"_s;
const QString kTakenBy = u"takenBy"_s;
const QString kNotIn = u"notIn"_s;

QString nameOf(GlobalKeys::State state)
{
    switch (state) {
    case GlobalKeys::State::Works:
        return u"works"_s;
    case GlobalKeys::State::Taken:
        return u"taken"_s;
    case GlobalKeys::State::Off:
        return u"off"_s;
    case GlobalKeys::State::NoAccess:
        return u"no-access"_s;
    }
    return {};
}

KeysReport::Key keyOf(Command command, const std::optional<KeyCombination> &combination,
                      const HotKeys *keyboard)
{
    return {.command = rowOf(command).words.toString(),
            .keys = combination ? keynames::written(*combination, keyboard) : QString(),
            .purpose = purposeOf(command),
            .state = {},
            .takenBy = {}};
}

} // namespace

KeysReport KeysReport::of(const GlobalKeys &keys)
{
    KeysReport report{.keys = {}, .problems = keys.problems()};
    for (const GlobalKeys::Key &each : keys.keys()) {
        Key key = keyOf(each.command, each.combination, &keys.keyboard());
        key.state = nameOf(each.state);
        if (each.state == GlobalKeys::State::Taken)
            key.takenBy = keys.holders();
        key.notIn = each.exceptions;
        report.keys.append(key);
    }
    return report;
}

KeysReport KeysReport::withoutVesk(const QString &fileText)
{
    const KeySettings settings = readKeySettings(fileText, nullptr);
    KeysReport report{.keys = {}, .problems = settings.problems};
    for (const CommandRow &row : commandsWithKeys()) {
        Key key = keyOf(row.command, settings.of(row.command), nullptr);
        key.notIn = settings.exceptions.at(static_cast<size_t>(row.command));
        key.state = key.keys.isEmpty() ? nameOf(GlobalKeys::State::Off) : u"unknown"_s;
        report.keys.append(key);
    }
    return report;
}

QList<QVariantMap> KeysReport::toMaps() const
{
    QList<QVariantMap> maps;
    for (const Key &key : keys) {
        maps.append({{kCommand, key.command},
                     {kKeys, key.keys},
                     {kPurpose, key.purpose},
                     {kState, key.state},
                     {kTakenBy, key.takenBy},
                     {kNotIn, key.notIn}});
    }
    return maps;
}

KeysReport KeysReport::fromMaps(const QList<QVariantMap> &maps, const QStringList &problems)
{
    KeysReport report{.keys = {}, .problems = problems};
    for (const QVariantMap &map : maps) {
        report.keys.append({.command = map.value(kCommand).toString(),
                            .keys = map.value(kKeys).toString(),
                            .purpose = map.value(kPurpose).toString(),
                            .state = map.value(kState).toString(),
                            .takenBy = map.value(kTakenBy).toStringList(),
                            .notIn = map.value(kNotIn).toStringList()});
    }
    return report;
}

} // namespace vesk
