// SPDX-License-Identifier: MIT
#pragma once

#include "../capture/capturedesktop.h"
#include "commands/veskservices.h"
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

#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>

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
    explicit ServicesWorld(std::span<const QStringView> owners = {});

    void press(const HotKeyRow &row) { QVERIFY(hotKeys.press(row.combination)); }
    void tapShiftTwice();
    void command(Command command);

    /// The message on the screen; empty if there is none.
    [[nodiscard]] static QString notice();
    /// Newest first.
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] QStringList prompts() const;

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
