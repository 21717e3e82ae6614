// SPDX-License-Identifier: MIT
#include "app/accesscommand.h"
#include "app/dailycopy.h"
#include "app/desktop.h"
#include "app/messagewindow.h"
#include "app/notification.h"
#include "app/quitsignals.h"
#include "app/remotecontrol.h"
#include "app/saveatexit.h"
#include "app/storefailure.h"
#include "app/storewatch.h"
#include "app/unwrittenwindow.h"
#include "app/veskapp.h"
#include "components/surroundings.h"
#include "editor/lentpasteboards.h"
#include "notes/notesstore.h"
#include "notes/storecopy.h"
#include "platform/freedesktop/coredumps.h"
#include "translations/translation.h"

#include <QCoroTask>

#include <QClipboard>
#include <QGuiApplication>
#include <QIcon>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <span>

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// How long to wait for a command that is writing a note, or for a Vesk that is just quitting.
constexpr std::chrono::milliseconds kLockPatience = 5s;

/// Translation context for the few texts in this file.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Main)
};

void say(const QString &message)
{
    QTextStream(stderr) << message << '\n';
}

void say(const vesk::MessageWindow::Content &content)
{
    say(content.message);
    if (!content.details.isEmpty())
        say(content.details);
}

/// Tells the user, on standard error and in a window, why Vesk does not start. Returns when the user has
/// closed the window.
void showFatal(vesk::Desktop &desktop, vesk::ApplicationService &service,
               const vesk::MessageWindow::Content &content)
{
    say(content);
    // Answers callers meanwhile.
    vesk::RemoteControl remoteControl(service, {.quit = [] { QCoreApplication::exit(0); }});
    remoteControl.refuseCommands(Texts::tr("Vesk could not open the notes store and is about to quit."));
    QQmlEngine engine;
    vesk::lendToEngine(engine, desktop.appearance, desktop.workspace, desktop.windows);
    vesk::lendToEditors(engine, desktop.pasteboard, &desktop.primary, &desktop.dragged);
    vesk::MessageWindow window(engine, content);
    QObject::connect(&window, &vesk::MessageWindow::accepted, qApp, &QCoreApplication::quit);
    QObject::connect(&window, &vesk::MessageWindow::rejected, qApp, &QCoreApplication::quit);
    window.show(vesk::MessageWindow::Arrival::Unasked);
    QCoreApplication::exec();
}

int runUntilQuit(vesk::Desktop &desktop, std::unique_ptr<vesk::GlobalKeys> keys, vesk::NotesStore &store,
                 vesk::ApplicationService &service, const vesk::DailyCopy &dailyCopy, bool isInBackground)
{
    vesk::VeskApp app(desktop, *keys, store, service);
    QObject::connect(&dailyCopy, &vesk::DailyCopy::problemChanged, &app,
                     [&app, &dailyCopy] { app.setCopyProblem(dailyCopy.problem()); });
    if (!isInBackground)
        app.showPanel();
    return QCoreApplication::exec();
}

/// Offers the texts that could not be written. Returns when the user is done with them, or when they could be
/// written after all.
void showUnwritten(vesk::Desktop &desktop, vesk::ApplicationService &service, const vesk::NotesStore &store)
{
    if (store.unwrittenTexts().isEmpty())
        return;
    QQmlEngine engine;
    vesk::lendToEngine(engine, desktop.appearance, desktop.workspace, desktop.windows);
    vesk::lendToEditors(engine, desktop.pasteboard, &desktop.primary, &desktop.dragged);
    vesk::UnwrittenWindow window(engine, store, desktop.pasteboard);
    QObject::connect(&window, &vesk::UnwrittenWindow::quitRequested, qApp, [] { QCoreApplication::exit(0); });
    // Show a user who starts Vesk again why it has not quit yet.
    QObject::connect(&service, &vesk::ApplicationService::activated, &window, &vesk::UnwrittenWindow::show);
    QObject::connect(&service, &vesk::ApplicationService::actionActivated, &window,
                     &vesk::UnwrittenWindow::show);
    window.appear();
    QCoreApplication::exec();
}

int runVesk(bool isInBackground)
{
    using IfTaken = vesk::ApplicationService::IfTaken;
    vesk::ApplicationService service;
    switch (service.claim(isInBackground ? IfTaken::LeaveAlone : IfTaken::BringForward)) {
    case vesk::ApplicationService::Claim::First:
        break;
    case vesk::ApplicationService::Claim::Forwarded:
        return 0;
    case vesk::ApplicationService::Claim::NoAnswer:
        say(Texts::tr("Vesk is already running but does not respond."));
        return 1;
    case vesk::ApplicationService::Claim::NoBus:
        say(Texts::tr("Vesk needs a session bus, and there is none."));
        return 1;
    }
    vesk::X11Connection::OpenResult x11 = vesk::X11Connection::open();
    if (!x11.connection) {
        say(Texts::tr("Vesk cannot start: %1").arg(x11.error));
        return 1;
    }
    vesk::Desktop desktop(std::move(x11.connection), service);
    // Before the notes are read, so that a key pressed meanwhile waits in the queue.
    auto keys = std::make_unique<vesk::GlobalKeys>(desktop.hotKeys, vesk::KeysFile::standardPath());
    keys->start();
    const QString path = vesk::NotesStore::standardPath();
    const vesk::NotesStore::OpenResult opened =
        vesk::NotesStore::open(path, desktop.clock, vesk::NotesStore::Use::Session, kLockPatience);
    if (!opened.store) {
        keys.reset();
        const auto content = vesk::describeStoreFailure(opened, path, desktop.clock.now());
        // When started with the session, the user has not asked for Vesk and has nothing to decide.
        if (opened.fault == vesk::StoreFault::HeldElsewhere && isInBackground) {
            say(content);
            vesk::notifyUser(content.heading, content.message);
        } else {
            showFatal(desktop, service, content);
        }
        return 1;
    }
    const vesk::DailyCopy dailyCopy(path, QCoreApplication::applicationFilePath(), desktop.clock);
    const vesk::SaveAtExit saveAtExit(*opened.store);
    const vesk::StoreWatch storeWatch(*opened.store, desktop.clock);
    const int result =
        runUntilQuit(desktop, std::move(keys), *opened.store, service, dailyCopy, isInBackground);
    // Texts that this does not write are offered to the user.
    static_cast<void>(opened.store->save());
    // Any other result means that there is no display left to ask on.
    if (result == 0)
        showUnwritten(desktop, service, *opened.store);
    // A text that was just pasted, or that the user copied, must not disappear with Vesk.
    QCoro::waitFor(desktop.pasteboard.handOver());
    return result;
}

/// Reports a missing X server where the user looks: on standard error and, for a start from a menu, where
/// nobody sees that, in a desktop notification.
int refuseWithoutServer(int argc, char *argv[])
{
    const QCoreApplication program(argc, argv);
    const vesk::Translation translation;
    const bool isWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const QString message =
        isWayland
            ? Texts::tr("Vesk needs an X11 desktop, and this is a Wayland desktop without an X server. Log "
                        "in to an "
                        "X11 session, or use the commands that work without one: vesk add and vesk list.")
            : Texts::tr(
                  "Vesk needs an X11 desktop, and there is no X server at \"%1\". The commands vesk add and "
                  "vesk list work without one.")
                  .arg(qEnvironmentVariable("DISPLAY"));
    say(message);
    if (isWayland)
        vesk::notifyUser(Texts::tr("Vesk cannot start"), message);
    return 1;
}

int runAccess(int argc, char *argv[])
{
    const QCoreApplication program(argc, argv);
    const vesk::Translation translation;
    return vesk::runAccessCommand(QCoreApplication::arguments().mid(2));
}

} // namespace

int main(int argc, char *argv[])
{
    vesk::forbidCoreDumps();
    const std::span<char *> words(argv, static_cast<size_t>(argc));
    QCoreApplication::setApplicationName(u"Vesk"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VESK_VERSION));
    if (words.size() > 1 && QByteArrayView(words[1]) == QByteArrayView("access"))
        return runAccess(argc, argv);
    if (words.size() > 1 && QByteArrayView(words[1]) == QByteArrayView(vesk::DailyCopy::kWord))
        return static_cast<int>(vesk::StoreCopy(vesk::NotesStore::standardPath()).make());

    // Use X11 windows even if a Wayland compositor offers both.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    if (!vesk::X11Connection::hasServer())
        return refuseWithoutServer(argc, argv);
    // The command that starts this program has already checked the arguments.
    const auto has = [&words](QByteArrayView option) {
        return std::ranges::any_of(words, [option](const char *word) { return word == option; });
    };
    // Software rendering shows a panel like this sooner and takes half the memory.
    if (!has("--gpu"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication program(argc, argv);
    const vesk::Translation translation;
    QGuiApplication::setLayoutDirection(translation.language().textDirection());
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Qt's text fields read the clipboard whenever it changes, and Qt waits for its owner: for seconds if the
    // owner hangs or is Vesk itself. So they are not notified of changes; they never use Qt's clipboard to
    // copy or paste.
    QGuiApplication::clipboard()->blockSignals(true);
    QGuiApplication::setDesktopFileName(u"org.vesk.Vesk"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/vesk/icon/org.vesk.Vesk.svg"_s));

    // If the file size is limited, a write must fail as on a full disk instead of killing Vesk.
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    const vesk::QuitSignals quitSignals;
    return runVesk(has("--background"));
}
