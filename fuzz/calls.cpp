// SPDX-License-Identifier: MIT
#include "app/remotecontrol.h"
#include "check.h"
#include "client/commandline.h"
#include "platform/freedesktop/applicationservice.h"
#include "platform/freedesktop/dbusmenu.h"

#include <QCoreApplication>
#include <QDBusMessage>

#include <fuzzer/FuzzedDataProvider.h>

using namespace vesk;

namespace {

/// The bus only passes well-formed strings.
QString anyString(FuzzedDataProvider &data)
{
    return QString::fromStdString(data.ConsumeRandomLengthString(500));
}

QStringList anyStrings(FuzzedDataProvider &data)
{
    QStringList strings;
    for (int count = data.ConsumeIntegralInRange(0, 6); count > 0; --count)
        strings.append(anyString(data));
    return strings;
}

int anyId(FuzzedDataProvider &data)
{
    return data.ConsumeBool() ? data.ConsumeIntegralInRange(-1, 4) : data.ConsumeIntegral<int>();
}

} // namespace

/// The calls that another process can make to a running Vesk, and the command line.
int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static int argc = 0;
    static QCoreApplication application(argc, nullptr);
    static ApplicationService service;
    static QString added;
    static const RemoteControl control(service, {.addNote = [](const QString &text) {
                                           added = text;
                                           return noterules::Kept{.outcome = noterules::Outcome::Added};
                                       }});
    static DBusMenu menu({{.label = QStringLiteral("One_"), .action = [] {}}, {}}, &service);

    FuzzedDataProvider data(bytes, size);
    const QStringList words = anyStrings(data);
    const ParsedCommandLine parsed = parseCommandLine(words);
    check(parsed.command.has_value() == parsed.error.isEmpty());

    added.clear();
    const QString text = anyString(data);
    control.AddNote(text, QDBusMessage());
    check(added == text);

    service.Activate({{anyString(data), anyString(data)}});
    service.Open(anyStrings(data), {});
    service.ActivateAction(anyString(data), {anyString(data)}, {});

    DBusMenuLayout layout;
    menu.GetLayout(anyId(data), anyId(data), anyStrings(data), layout);
    static_cast<void>(menu.GetGroupProperties({anyId(data), anyId(data)}, anyStrings(data)));
    static_cast<void>(menu.GetProperty(anyId(data), anyString(data)));
    menu.Event(anyId(data), anyString(data), QDBusVariant(anyString(data)), 0);
    menu.EventGroup({{.id = anyId(data), .name = anyString(data)}});
    QList<int> errors;
    DBusMenu::AboutToShowGroup({anyId(data)}, errors);
    return 0;
}
