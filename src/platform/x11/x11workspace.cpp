// SPDX-License-Identifier: MIT
#include "platform/x11/x11workspace.h"

#include "platform/x11/x11connection.h"

#include <QDesktopServices>
#include <QFileInfo>

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
    const std::optional<qint64> process = processOf(*window);
    if (!process)
        return std::nullopt;
    return applicationOf(*window, *process);
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

std::optional<qint64> X11Workspace::processOf(xcb_window_t window) const
{
    return m_connection.clientProcess(window);
}

QString X11Workspace::titleOf(xcb_window_t window) const
{
    const QByteArray title = m_connection.property(window, m_connection.atom("_NET_WM_NAME"));
    if (!title.isEmpty())
        return QString::fromUtf8(title);
    return QString::fromLocal8Bit(m_connection.property(window, XCB_ATOM_WM_NAME));
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
    // A switch passes through "no window" for about a millisecond; that is no activation.
    const std::optional<xcb_window_t> window = activeWindow();
    m_reportedWindow = window;
    if (window && window != m_lastWindow) {
        m_lastWindow = window;
        m_activationTime = notify->time;
        const qint64 process = processOf(*window).value_or(0);
        if (process != 0 && process != m_lastProcess) {
            m_lastProcess = process;
            Q_EMIT didActivateApplication(applicationOf(*window, process));
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
    const QFileInfo executable(QStringLiteral("/proc/%1/exe").arg(processIdentifier));
    return {.gtkApplicationId = QString::fromUtf8(gtkId),
            .instanceName = QString::fromLocal8Bit(classes.value(0)),
            .className = QString::fromLocal8Bit(classes.value(1)),
            .executableName = QFileInfo(executable.symLinkTarget()).fileName()};
}

} // namespace vesk
