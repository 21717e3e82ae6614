// SPDX-License-Identifier: MIT
#pragma once

#include "app/accesswindow.h"
#include "app/appupdater.h"
#include "app/desktopmenus.h"
#include "app/memorytrim.h"
#include "app/menucommands.h"
#include "app/questions.h"
#include "capture/pasteback.h"
#include "capture/pasteboardwatcher.h"
#include "capture/selectionreader.h"
#include "input/globalkeys.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "quicknote/quicknotepanel.h"
#include "quicknote/toast.h"
#include "services/veskservices.h"

#include <QObject>
#include <QPointer>
#include <QQmlEngine>

#include <memory>

namespace vesk {

class ApplicationService;
class RemoteControl;
struct Desktop;

/// The running program: the single instance of everything that the layers share.
class VeskApp final : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object.
    VeskApp(Desktop &desktop, GlobalKeys &keys, NotesStore &store, ApplicationService &service);
    ~VeskApp() override;

    void showPanel() { m_panelWindow.showPanel(); }
    /// Shows in the panel that the daily copy could not be made; an empty text removes the message.
    void setCopyProblem(const QString &problem) { m_panel.setCopyProblem(problem); }

private:
    /// Lets other processes give Vesk the commands of the keys.
    void offerCommands(Desktop &desktop, NotesStore &store, ApplicationService &service);
    /// Prints the problems in the user's key settings to standard error.
    void tellOfKeys() const;
    void onAction(const QString &name);

    GlobalKeys &m_keys;
    QQmlEngine m_engine;
    PasteboardWatcher m_watcher;
    SelectionReader m_reader;
    PasteBack m_pasteBack;
    PanelModel m_panel;
    PanelWindow m_panelWindow;
    Toast m_toast;
    QuickNotePanel m_quickNote;
    Questions m_questions;
    AccessWindow m_accessWindow;
    AppUpdater m_updater;
    VeskServices m_services;
    MenuCommands m_menuCommands;
    MemoryTrim m_memoryTrim;
    std::unique_ptr<DesktopMenus> m_desktopMenus;
    /// Owned by the service, which answers other programs and is destroyed after this object.
    QPointer<RemoteControl> m_remoteControl;
};

} // namespace vesk
