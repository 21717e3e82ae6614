// SPDX-License-Identifier: MIT
#include "virtualdesktop/virtualdesktop.h"

#include "virtualdesktop/files.h"
#include "virtualdesktop/guard.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kStartBound = 15s;
const auto kBusConnection = u"vesk-test-session"_s;

} // namespace

std::unique_ptr<VirtualDesktop> VirtualDesktop::start(QString &problem)
{
    return start(problem, {});
}

std::unique_ptr<VirtualDesktop> VirtualDesktop::start(QString &problem, const Lacks &lacks)
{
    std::unique_ptr<VirtualDesktop> desktop(new VirtualDesktop(lacks));
    desktop->prepareEnvironment();
    if (!desktop->startServer())
        problem = u"The X server (Xvfb) did not start."_s;
    else if (!desktop->startBus())
        problem = u"The session bus (dbus-daemon) did not start."_s;
    else if (!desktop->startWindowManager())
        problem = u"The window manager did not start."_s;
    else if (!lacks.accessibilityBus && !desktop->enableAccessibility())
        problem = u"The accessibility bus (at-spi2-core) did not answer."_s;
    else
        return desktop;
    return nullptr;
}

VirtualDesktop::VirtualDesktop(Lacks lacks)
    : m_lacks(std::move(lacks))
    , m_notes(m_home.filePath(u"data/Vesk/Notes.store"_s))
{
}

VirtualDesktop::~VirtualDesktop()
{
    QDBusConnection::disconnectFromBus(kBusConnection);
    m_pointer.reset();
    m_keyboard.reset();
    m_windows.reset();
    m_display.reset();
    m_windowManager.reset();
    m_bus.reset();
    m_bareBus.reset();
    m_server.reset();
    // Programs that the bus has started are still running.
    endDescendants();
}

void VirtualDesktop::prepareEnvironment()
{
    const QProcessEnvironment system = QProcessEnvironment::systemEnvironment();
    for (const QString &name : system.keys()) {
        static constexpr QStringView kForeign[] = {u"XDG_", u"DBUS_", u"QT_",  u"QML_", u"GTK_",
                                                   u"GDK_", u"LC_",   u"LANG", u"AT_",  u"WAYLAND_"};
        const bool isForeign =
            std::ranges::any_of(kForeign, [&](QStringView prefix) { return name.startsWith(prefix); });
        if (!isForeign)
            m_environment.insert(name, system.value(name));
    }
    const std::pair<QString, QString> folders[] = {{u"XDG_RUNTIME_DIR"_s, u"run"_s},
                                                   {u"XDG_DATA_HOME"_s, u"data"_s},
                                                   {u"XDG_CONFIG_HOME"_s, u"config"_s},
                                                   {u"XDG_CACHE_HOME"_s, u"cache"_s},
                                                   {u"XDG_STATE_HOME"_s, u"state"_s}};
    for (const auto &[variable, folder] : folders) {
        QDir(m_home.path()).mkdir(folder);
        QFile::setPermissions(m_home.filePath(folder),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(variable, m_home.filePath(folder));
    }
    m_environment.insert(u"HOME"_s, m_home.path());
    m_environment.insert(u"LANG"_s, u"C.UTF-8"_s);
    m_environment.insert(u"XDG_SESSION_TYPE"_s, u"x11"_s);
    m_environment.insert(u"GDK_BACKEND"_s, u"x11"_s);
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
}

std::unique_ptr<ChildProcess> VirtualDesktop::run(const QString &program, const QStringList &arguments)
{
    // One file for each start: a second start must not overwrite the first one's output.
    const QString log = m_home.filePath(u"%1-%2.log"_s.arg(QFileInfo(program).fileName()).arg(++m_starts));
    return ChildProcess::start({program, arguments, m_environment, log});
}

bool VirtualDesktop::startServer()
{
    const QString screen = u"%1x%2x24"_s.arg(m_lacks.screen.width()).arg(m_lacks.screen.height());
    QStringList arguments{u"-displayfd"_s, u"1"_s,         u"-screen"_s, u"0"_s,
                          screen,          u"-nolisten"_s, u"tcp"_s,     u"-noreset"_s};
    if (!m_lacks.extension.isEmpty())
        arguments += {u"-extension"_s, m_lacks.extension};
    m_server = run(u"Xvfb"_s, arguments);
    const QString number = m_server ? m_server->readLine(kStartBound) : QString();
    if (number.isEmpty())
        return false;
    m_displayName = u":"_s + number;
    m_environment.insert(u"DISPLAY"_s, m_displayName);
    m_display = DisplayConnection::open(m_displayName);
    if (!m_display)
        return false;
    m_windows = std::make_unique<Windows>(*m_display);
    m_keyboard = std::make_unique<Keyboard>(*m_display);
    m_pointer = std::make_unique<Pointer>(*m_display);
    return true;
}

bool VirtualDesktop::startBus()
{
    // The document portal mounts a file system in the home folder, which would stay behind when the desktop
    // ends. Nothing here needs it.
    if (writeFile(u"data/dbus-1/services/org.freedesktop.portal.Documents.service"_s,
                  u"[D-BUS Service]\nName=org.freedesktop.portal.Documents\nExec=/bin/false\n"_s)
            .isEmpty())
        return false;
    if (m_lacks.accessibilityBus) {
        m_bareBus = BusDaemon::start();
        m_busAddress = m_bareBus ? m_bareBus->address() : QString();
    } else {
        // Its socket is removed with the home folder.
        const QString socket = u"unix:path="_s + m_home.filePath(u"run/bus"_s);
        m_bus = run(u"dbus-daemon"_s,
                    {u"--session"_s, u"--nofork"_s, u"--address"_s, socket, u"--print-address=1"_s});
        m_busAddress = m_bus ? m_bus->readLine(kStartBound) : QString();
    }
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_busAddress);
    return !m_busAddress.isEmpty();
}

bool VirtualDesktop::startWindowManager()
{
    const std::optional<WindowManager> chosen = WindowManager::chosen();
    if (!chosen)
        return false;
    for (const auto &[path, text] : chosen->files) {
        QDir(m_home.path()).mkpath(QFileInfo(path).path());
        if (writeFile(path, text).isEmpty())
            return false;
    }
    m_windowManager = run(chosen->command.first(), chosen->command.sliced(1));
    return m_windowManager && waitForRootProperty("_NET_SUPPORTING_WM_CHECK");
}

bool VirtualDesktop::waitForRootProperty(const char *name)
{
    return m_display->waitUntil(kStartBound, [&] { return m_windows->rootNumber(name) != 0; });
}

bool VirtualDesktop::setAccessibility(bool isOn)
{
    QDBusConnection bus = QDBusConnection::connectToBus(m_busAddress, kBusConnection);
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                       u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
    call.setArguments({u"org.a11y.Status"_s, u"IsEnabled"_s, QVariant::fromValue(QDBusVariant(isOn))});
    const int bound = int(std::chrono::milliseconds(kStartBound).count());
    return bus.call(call, QDBus::Block, bound).type() == QDBusMessage::ReplyMessage;
}

bool VirtualDesktop::enableAccessibility()
{
    if (!setAccessibility(true))
        return false;
    QDBusConnection bus = QDBusConnection::connectToBus(m_busAddress, kBusConnection);
    const int bound = int(std::chrono::milliseconds(kStartBound).count());
    // The bus is started when its address is first requested. Qt applications look for it once, when they
    // start, using what the server says about it.
    const QDBusMessage call = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                             u"org.a11y.Bus"_s, u"GetAddress"_s);
    return bus.call(call, QDBus::Block, bound).type() == QDBusMessage::ReplyMessage
           && waitForRootProperty("AT_SPI_BUS");
}

QString VirtualDesktop::veskProgram()
{
    // By default, the program that was built together with the tests.
    const QString built = QCoreApplication::applicationDirPath() + u"/../bin/vesk"_s;
    return qEnvironmentVariable("VESK_PROGRAM", built);
}

bool VirtualDesktop::prepareUser()
{
    const QString folder = u"config/Vesk"_s;
    QDir(m_home.path()).mkpath(folder);
    if (writeFile(folder + u"/Vesk.conf"_s, u"[General]\nhasSeenGuide=true\n"_s).isEmpty())
        return false;
    const std::unique_ptr<ChildProcess> access = run(veskProgram(), {u"access"_s, u"allow"_s});
    return access && access->waitForExit(kStartBound) && access->exitCode() == 0;
}

std::unique_ptr<ChildProcess> VirtualDesktop::startVesk()
{
    std::unique_ptr<ChildProcess> vesk = run(veskProgram(), {u"--background"_s});
    if (!vesk)
        return nullptr;
    const bool isReady = m_display->waitUntil(kStartBound, [&] {
        return !vesk->isRunning() || (m_keyboard->isHotKeyTaken(XK_n) && m_keyboard->isHotKeyTaken(XK_t));
    });
    return isReady && vesk->isRunning() ? std::move(vesk) : nullptr;
}

QString VirtualDesktop::writeFile(const QString &name, const QString &text)
{
    const QString path = m_home.filePath(name);
    return vesk::writeFile(path, text.toUtf8()) ? path : QString();
}

QString VirtualDesktop::readFile(const QString &name) const
{
    return QString::fromUtf8(contentsOf(m_home.filePath(name)));
}

} // namespace vesk
