// SPDX-License-Identifier: MIT
#include "platform/x11/x11workspace.h"

#include "platform/x11/clientmachine.h"
#include "platform/x11/x11connection.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QSysInfo>

namespace vesk {

X11Workspace::X11Workspace(X11Connection &connection)
    : m_connection(connection)
    , m_reportedWindow(activeWindow())
    , m_lastWindow(m_reportedWindow)
{
    if (m_lastWindow)
        m_lastProcess = processOf(*m_lastWindow).value_or(0);
    connect(&connection, &X11Connection::eventReceived, this, &X11Workspace::onEvent);
}

std::optional<RunningApplication> X11Workspace::frontmostApplication() const
{
    const std::optional<xcb_window_t> window = activeWindow();
    if (!window)
        return std::nullopt;
    RunningApplication application = applicationOf(*window, processOf(*window).value_or(0));
    if (application.processIdentifier == 0 && application.localizedName.isEmpty())
        return std::nullopt;
    return application;
}

bool X11Workspace::hasApplication(const QString &bundleIdentifier) const
{
    return m_entries.find(bundleIdentifier) != nullptr;
}

QIcon X11Workspace::iconForApplication(const QString &bundleIdentifier) const
{
    return m_entries.icon(bundleIdentifier);
}

bool X11Workspace::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

bool X11Workspace::openApplication(const QString &bundleIdentifier)
{
    return m_entries.launch(bundleIdentifier);
}

std::optional<xcb_window_t> X11Workspace::activeWindow() const
{
    const std::optional<quint32> window =
        m_connection.property32(m_connection.root(), m_connection.atom("_NET_ACTIVE_WINDOW"));
    if (!window || *window == XCB_WINDOW_NONE)
        return std::nullopt;
    return window;
}

std::optional<xcb_window_t> X11Workspace::windowOfEvent()
{
    // A notification only says that the active window has changed, not to which one: on a busy machine it may
    // have changed again. Events that precede the answer to a request carry at most the request's number.
    const auto cookie = xcb_get_input_focus(m_connection.xcb());
    const XReply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(m_connection.xcb(), cookie, nullptr));
    m_askedAt = cookie.sequence;
    m_askedWindow = m_reportedWindow;
    if (m_overtakenWindow == m_askedWindow)
        m_overtakenWindow = XCB_WINDOW_NONE;
    return m_askedWindow;
}

std::optional<qint64> X11Workspace::processOf(xcb_window_t window) const
{
    const std::optional<quint32> stated = m_connection.property32(window, m_connection.atom("_NET_WM_PID"));
    return processOfClient(m_connection.clientProcess(window),
                           stated ? std::optional(qint64{*stated}) : std::nullopt,
                           !isOfAnotherMachine(window));
}

bool X11Workspace::isOfAnotherMachine(xcb_window_t window) const
{
    const QByteArray machine = m_connection.property(window, XCB_ATOM_WM_CLIENT_MACHINE);
    return !isOwnMachine(QString::fromLocal8Bit(machine.split('\0').first()), QSysInfo::machineHostName());
}

QString X11Workspace::titleOf(xcb_window_t window) const
{
    const QByteArray title = m_connection.property(window, m_connection.atom("_NET_WM_NAME"));
    if (!title.isEmpty())
        return QString::fromUtf8(title);
    return QString::fromLocal8Bit(m_connection.property(window, XCB_ATOM_WM_NAME));
}

KeyTaker X11Workspace::keyTakerOf(xcb_window_t window) const
{
    const WindowIdentity identity = identityOf(window, processOf(window).value_or(0));
    return vesk::keyTakerOf(identity, m_entries.match(identity));
}

void X11Workspace::warmUp() const
{
    static_cast<void>(m_entries.find({}));
}

void X11Workspace::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (notify->window != m_connection.root() || notify->atom != m_connection.atom("_NET_ACTIVE_WINDOW"))
        return;
    // A switch passes through "no window" for about a millisecond; that is not an activation.
    const std::optional<xcb_window_t> window = activeWindow();
    m_reportedWindow = window;
    if (m_askedWindow && isAtOrAfter(m_askedAt, event->full_sequence))
        m_overtakenWindow = *m_askedWindow;
    m_askedWindow.reset();
    if (window && window != m_lastWindow) {
        m_lastWindow = window;
        m_activationTime = notify->time;
        const qint64 process = processOf(*window).value_or(0);
        const RunningApplication application = applicationOf(*window, process);
        // Programs without a local process cannot be told apart.
        const bool isOther = process == 0 ? !application.localizedName.isEmpty() : process != m_lastProcess;
        if (isOther) {
            m_lastProcess = process;
            Q_EMIT didActivateApplication(application);
        }
    }
    Q_EMIT activeWindowChanged();
}

RunningApplication X11Workspace::applicationOf(xcb_window_t window, qint64 processIdentifier) const
{
    const WindowIdentity identity = identityOf(window, processIdentifier);
    RunningApplication application{.processIdentifier = processIdentifier,
                                   .localizedName = identity.className,
                                   .bundleIdentifier = std::nullopt};
    if (application.localizedName.isEmpty())
        application.localizedName = identity.executableName;
    if (const DesktopEntry *entry = m_entries.match(identity)) {
        application.localizedName = entry->name;
        application.bundleIdentifier = entry->id;
    }
    return application;
}

WindowIdentity X11Workspace::identityOf(xcb_window_t window, qint64 processIdentifier) const
{
    const QByteArray gtkId = m_connection.property(window, m_connection.atom("_GTK_APPLICATION_ID"));
    const QList<QByteArray> classes = m_connection.property(window, XCB_ATOM_WM_CLASS).split('\0');
    QString executable;
    if (processIdentifier != 0 && !isOfAnotherMachine(window))
        executable = QFileInfo(QStringLiteral("/proc/%1/exe").arg(processIdentifier)).symLinkTarget();
    return {.gtkApplicationId = QString::fromUtf8(gtkId),
            .instanceName = QString::fromLocal8Bit(classes.value(0)),
            .className = QString::fromLocal8Bit(classes.value(1)),
            .executableName = QFileInfo(executable).fileName()};
}

} // namespace vesk
