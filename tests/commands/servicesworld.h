// SPDX-License-Identifier: MIT
#pragma once

#include "../capture/capturedesktop.h"
#include "commands/veskservices.h"
#include "components/surroundings.h"
#include "input/globalkeys.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryapplication.h"
#include "platform/memory/memorydefaults.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorysounds.h"
#include "platform/memory/memorywindows.h"
#include "quicknote/toast.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace vesk {

/// One of the hub's commands: a hot key, or the double Shift.
struct Command
{
    const HotKeyRow *key = nullptr;
};
constexpr Command kNote{&hotkeytable::kQuickNote};
constexpr Command kAppend{&hotkeytable::kAppend};
constexpr Command kChecklist{&hotkeytable::kChecklist};
constexpr Command kAdd{&hotkeytable::kAddToChecklist};
constexpr Command kPrompt{};

/// The whole program but for its platform.
struct ServicesWorld : CaptureDesktop
{
    /// The quick-note box, without a window.
    class MemoryBox final : public QuickNoteBox
    {
    public:
        void show(Mode mode) override { m_mode = mode; }
        void close() override { m_mode.reset(); }
        [[nodiscard]] bool isShowing() const override { return m_mode.has_value(); }
        [[nodiscard]] std::optional<Mode> mode() const { return m_mode; }

    private:
        std::optional<Mode> m_mode;
    };

    /// `owners` have the checklist's combination for themselves.
    explicit ServicesWorld(std::span<const QStringView> owners = {})
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

    void press(const HotKeyRow &row) { QVERIFY(hotKeys.press(row.combination)); }
    void tapShiftTwice()
    {
        for (const auto held : {Qt::ShiftModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::NoModifier})
            tap.setFlags({.held = held, .isCapsLocked = false, .time = {}});
    }
    void command(Command command)
    {
        if (command.key)
            press(*command.key);
        else
            tapShiftTwice();
    }

    /// The message on the screen; empty if there is none.
    [[nodiscard]] static QString notice()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (const QWindow *window : windows) {
            if (window->isVisible() && (window->flags() & Qt::WindowDoesNotAcceptFocus))
                return window->title();
        }
        return {};
    }
    /// Newest first.
    [[nodiscard]] QStringList texts() const { return textsOf(store.notes()); }
    [[nodiscard]] QStringList prompts() const { return textsOf(store.prompts()); }
    template <typename Record>
    [[nodiscard]] static QStringList textsOf(const LiveQuery<Record> &query)
    {
        QStringList texts;
        for (qsizetype i = 0; i < query.count(); ++i)
            texts.append(query.at(i).text());
        return texts;
    }

    QTemporaryDir folder;
    NotesStore::OpenResult opened = NotesStore::open(folder.filePath(QStringLiteral("Notes.store")), clock);
    NotesStore &store = *opened.store;
    MemoryAppearance appearance;
    MemoryApplication application;
    MemoryDefaults defaults;
    MemoryHotKeys hotKeys;
    GlobalKeys keys{hotKeys, folder.filePath(QStringLiteral("Keys.conf"))};
    MemoryScreens screens;
    MemorySounds sounds;
    MemoryWindows windows{screens};
    QQmlEngine engine;
    SelectionReader reader{readersNeeds()};
    PanelModel panel{store, clock, defaults, application, accessibility};
    std::unique_ptr<PanelWindow> panelWindow;
    std::unique_ptr<Toast> toast;
    MemoryBox box;
    std::unique_ptr<VeskServices> services;
};

} // namespace vesk
