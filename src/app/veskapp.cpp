// SPDX-License-Identifier: MIT
#include "app/veskapp.h"

#include "app/desktop.h"
#include "app/remotecontrol.h"
#include "components/commandkeys.h"
#include "components/surroundings.h"
#include "editor/lentpasteboards.h"
#include "notes/notesstore.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTextStream>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QQmlEngine &lent(QQmlEngine &engine, Desktop &desktop, const GlobalKeys &keys)
{
    lendToEngine(engine, desktop.appearance, desktop.workspace, desktop.windows);
    lendKeys(engine, keys);
    lendToEditors(engine, desktop.pasteboard, &desktop.primary, &desktop.dragged);
    return engine;
}

} // namespace

VeskApp::VeskApp(Desktop &desktop, GlobalKeys &keys, NotesStore &store, ApplicationService &service)
    : m_keys(keys)
    , m_watcher(desktop.pasteboard, desktop.clock)
    , m_reader({.accessibility = desktop.accessibility,
                .workspace = desktop.workspace,
                .pasteboard = desktop.pasteboard,
                .watcher = m_watcher,
                .poster = desktop.poster,
                .tap = desktop.tap,
                .clock = desktop.clock})
    , m_pasteBack({.clock = desktop.clock,
                   .application = desktop.application,
                   .workspace = desktop.workspace,
                   .pasteboard = desktop.pasteboard,
                   .watcher = m_watcher,
                   .poster = desktop.poster})
    , m_panel(store, desktop.clock, desktop.defaults, desktop.application, desktop.accessibility)
    , m_panelWindow(lent(m_engine, desktop, m_keys), m_panel, desktop.application, desktop.screens,
                    desktop.windows)
    , m_toast(m_engine, desktop.screens, desktop.windows, desktop.clock)
    , m_quickNote({.engine = m_engine,
                   .store = store,
                   .clock = desktop.clock,
                   .application = desktop.application,
                   .screens = desktop.screens,
                   .windows = desktop.windows,
                   .sounds = desktop.sounds,
                   .toast = m_toast})
    , m_questions(desktop.application)
    , m_accessWindow(m_engine, desktop.consent, m_questions)
    , m_updater(m_engine, desktop.updates, desktop.workspace, m_questions)
    , m_services({.clock = desktop.clock,
                  .keys = m_keys,
                  .tap = desktop.tap,
                  .accessibility = desktop.accessibility,
                  .workspace = desktop.workspace,
                  .sounds = desktop.sounds,
                  .store = store,
                  .reader = m_reader,
                  .panel = m_panel,
                  .panelWindow = m_panelWindow,
                  .quickNote = m_quickNote,
                  .toast = m_toast})
    , m_menuCommands(m_panelWindow.window(), *m_panel.editor())
    , m_memoryTrim(desktop.application)
{
    const auto performing = [this](Command command) {
        return [this, command] { m_services.perform(command); };
    };
    connect(&desktop.application, &Application::reopened, this, performing(Command::Show));
    connect(&m_quickNote, &QuickNotePanel::aboutToOpen, &m_questions, &Questions::pause);
    connect(&m_quickNote, &QuickNotePanel::closed, &m_questions, &Questions::resume);
    connect(&desktop.accessibility, &X11Accessibility::trustAsked, this, [this] {
        // In the panel the user has pressed a button for this; elsewhere, a key for something else.
        if (m_panelWindow.window().isActive())
            m_accessWindow.show();
        else
            m_accessWindow.ask();
    });
    connect(desktop.x11.get(), &X11Connection::lost, this, [] { QCoreApplication::exit(1); });
    connect(m_panel.cards(), &CardActions::pasteRequested, &m_pasteBack, &PasteBack::pasteIntoPreviousApp);
    connect(&m_pasteBack, &PasteBack::refused, this, [this](PasteBack::Refusal refusal) {
        const bool isClosed = refusal == PasteBack::Refusal::WindowClosed;
        m_toast.show(isClosed ? notices::kCopiedWindowClosed : notices::kCopiedOnly);
    });
    connect(m_panel.cards(), &CardActions::copyRequested, this, [this, &desktop](const QString &text) {
        desktop.pasteboard.setString(text);
        m_watcher.markOwn();
    });
    connect(m_panel.cards(), &CardActions::urlRequested, &desktop.workspace, &Workspace::openUrl);
    connect(m_panel.cards(), &CardActions::applicationRequested, &desktop.workspace,
            &Workspace::openApplication);
    connect(m_panel.menu(), &PanelMenu::accessibilitySettingsRequested, &m_accessWindow, &AccessWindow::show);
    connect(&m_menuCommands, &MenuCommands::chosen, &m_services, &VeskServices::perform);
    connect(m_panel.menu(), &PanelMenu::quickNoteRequested, this, performing(Command::QuickNote));
    connect(m_panel.menu(), &PanelMenu::quickChecklistRequested, this, performing(Command::QuickChecklist));
    connect(m_panel.menu(), &PanelMenu::quitRequested, this, performing(Command::Quit));
    // Not quit(), which asks the windows to close; the panel would refuse and merely hide.
    connect(&m_services, &VeskServices::quitRequested, this, [] { QCoreApplication::exit(0); });
    connect(m_panel.menu(), &PanelMenu::updateCheckRequested, &m_updater, &AppUpdater::checkForUpdates);
    const auto followUpdater = [this] { m_panel.menu()->setCanCheckForUpdates(m_updater.canCheck()); };
    connect(&m_updater, &AppUpdater::canCheckChanged, this, followUpdater);
    followUpdater();
    m_watcher.start();
    connect(&m_keys, &GlobalKeys::problemsChanged, this, &VeskApp::tellOfKeys);
    tellOfKeys();
    m_services.start();
    // A user who looks up a key that did nothing may have freed it. Show the panel first, then retry.
    connect(&m_panelWindow.window(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (isVisible)
            QTimer::singleShot(0, this, [this] { m_keys.retry(); });
    });
    offerCommands(desktop, store, service);
    QTimer::singleShot(0, this, [this, &desktop] {
        desktop.workspace.warmUp();
        m_desktopMenus = std::make_unique<DesktopMenus>(m_panelWindow, m_menuCommands, m_services);
    });
}

VeskApp::~VeskApp()
{
    if (m_remoteControl)
        m_remoteControl->refuseCommands(tr("Vesk is quitting."));
}

void VeskApp::offerCommands(Desktop &desktop, NotesStore &store, ApplicationService &service)
{
    connect(&service, &ApplicationService::actionActivated, this, &VeskApp::onAction);
    // The service holds this callback and may call it after this object is destroyed.
    const QPointer<VeskApp> self(this);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the service owns it.
    m_remoteControl = new RemoteControl(
        service, {
                     .perform =
                         [self](Command command) {
                             if (!self.isNull())
                                 self->m_services.perform(command);
                         },
                     .quit = [] { QCoreApplication::exit(0); },
                     .addNote = [&clock = desktop.clock,
                                 &store](const QString &text) { return noterules::add(store, clock, text); },
                     .keys =
                         [self] {
                             if (self.isNull())
                                 return KeysReport();
                             // The caller may just have freed a combination.
                             self->m_keys.retry();
                             return KeysReport::of(self->m_keys);
                         },
                 });
}

void VeskApp::tellOfKeys() const
{
    for (const QString &problem : m_keys.problems())
        QTextStream(stderr) << "vesk: " << problem << '\n';
}

void VeskApp::onAction(const QString &name)
{
    if (name == "new-note"_L1)
        m_services.perform(Command::Write);
    else if (name == "quick-note"_L1)
        m_services.perform(Command::QuickNote);
    else
        m_services.perform(Command::Show);
}

} // namespace vesk
