// SPDX-License-Identifier: MIT
#include "servicesworld.h"

#include "components/surroundings.h"

#include <QGuiApplication>
#include <QWindow>

namespace vesk {

namespace {

template <typename Record>
QStringList textsOf(const LiveQuery<Record> &query)
{
    QStringList texts;
    for (qsizetype i = 0; i < query.count(); ++i)
        texts.append(query.at(i).text());
    return texts;
}

} // namespace

ServicesWorld::ServicesWorld(std::span<const QStringView> owners)
{
    lendToEngine(engine, appearance, workspace, windows);
    panelWindow = std::make_unique<PanelWindow>(engine, panel, application, screens, windows);
    toast = std::make_unique<Toast>(engine, screens, windows, clock);
    services = std::make_unique<VeskServices>(VeskServices::Needs{.clock = clock,
                                                                  .keys = keys,
                                                                  .tap = tap,
                                                                  .accessibility = accessibility,
                                                                  .workspace = workspace,
                                                                  .sounds = sounds,
                                                                  .store = store,
                                                                  .reader = reader,
                                                                  .panel = panel,
                                                                  .panelWindow = *panelWindow,
                                                                  .quickNote = box,
                                                                  .toast = *toast,
                                                                  .checklistKeyOwners = owners});
    services->start();
}

void ServicesWorld::tapShiftTwice()
{
    for (const auto held : {Qt::ShiftModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::NoModifier})
        tap.setFlags({.held = held, .isCapsLocked = false, .time = {}});
}

void ServicesWorld::command(Command command)
{
    if (command.key)
        press(*command.key);
    else
        tapShiftTwice();
}

QString ServicesWorld::notice()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow *window : windows) {
        if (window->isVisible() && (window->flags() & Qt::WindowDoesNotAcceptFocus))
            return window->title();
    }
    return {};
}

QStringList ServicesWorld::texts() const
{
    return textsOf(store.notes());
}

QStringList ServicesWorld::prompts() const
{
    return textsOf(store.prompts());
}

} // namespace vesk
