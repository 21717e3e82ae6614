// SPDX-License-Identifier: MIT
#include "platform/x11/x11application.h"

#include "platform/freedesktop/applicationservice.h"
#include "platform/logging.h"
#include "platform/x11/keyboardhold.h"
#include "platform/x11/keystates.h"
#include "platform/x11/ownwindows.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace vesk {

X11Application::X11Application(X11Connection &connection, X11Workspace &workspace, KeyboardHold &hold,
                               ApplicationService &service)
    : m_connection(connection)
    , m_workspace(workspace)
    , m_hold(hold)
    , m_heldKeys(connection)
    , m_lastForeign(foreignActiveWindow())
    , m_workspaceInUse(workspaceInUse())
{
    // Long enough for the window manager to finish what it was asked to do, short enough that the user does
    // not notice it when turning elsewhere.
    constexpr std::chrono::milliseconds kSettled{100};
    m_elsewhere.setSingleShot(true);
    m_elsewhere.setInterval(kSettled);
    connect(&m_elsewhere, &QTimer::timeout, this, [this] {
        // So far we may only have been told about an earlier switch.
        if (isOwnWindowActive())
            return;
        if (!foreignActiveWindow())
            m_lastForeign.reset(); // The user is not working in any window.
        // The focus may have arrived and gone before either was read.
        if (m_activation.isActive() && hasUserTurnedElsewhere()) {
            m_activation.stop();
            m_isActive = true;
        }
        setActive(false);
    });
    constexpr std::chrono::milliseconds kActivation{500};
    m_activation.setSingleShot(true);
    m_activation.setInterval(kActivation);
    connect(&connection, &X11Connection::eventReceived, this, &X11Application::onEvent);
    connect(&workspace, &X11Workspace::activeWindowChanged, this, &X11Application::onActiveWindowChanged);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *window) {
        if (!window)
            return;
        // Window managers may give the focus to another window, even one of ours, before they are done.
        if (isOwnWindowActive() && isActivationDone()) {
            m_activation.stop();
            m_hold.end();
        }
        // So far we may only have been told what was active before; restart the timer.
        if (m_elsewhere.isActive())
            m_elsewhere.start();
        // The active window may have changed again before its change to ours was read.
        setActive(true);
    });
    connect(&service, &ApplicationService::activated, this, &Application::reopened);
}

void X11Application::hide()
{
    if (m_isHidden)
        return;
    m_isHidden = true;
    const bool hadKeyboard = isActive() && !hasUserTurnedElsewhere();
    m_isActive = false;
    m_heldKeys.begin();
    m_hold.end();
    m_activation.stop();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (!(window->flags() & Qt::WindowDoesNotAcceptFocus))
            window->hide();
    }
    // Window managers differ in which window gets the focus when one closes, so request it.
    m_returnedTo = hadKeyboard ? m_previousWindow : std::nullopt;
    if (hadKeyboard)
        activatePrevious();
    m_previousWindow.reset();
    m_taken.clear();
    Q_EMIT didHide();
}

bool X11Application::isAway() const
{
    const std::optional<ForeignWindow> window = foreignActiveWindow();
    if (m_returnedTo && isOpen(*m_returnedTo))
        return window && window->id == m_returnedTo->id;
    return window.has_value();
}

bool X11Application::isPreviousWindowClosed() const
{
    return m_returnedTo && !isOpen(*m_returnedTo);
}

bool X11Application::isAnyKeyDown() const
{
    return keysDown(m_connection).any();
}

void X11Application::expectKeys()
{
    m_hold.beginQuietly();
}

void X11Application::expectNoKeys()
{
    m_hold.endQuiet();
}

bool X11Application::holdKeys()
{
    remember();
    // Qt forgets a hidden window only when the server reports it.
    const QWindow *window = QGuiApplication::focusWindow();
    if (!(window && window->isVisible()))
        return m_hold.begin();
    m_hold.endQuiet();
    return false;
}

void X11Application::activate(QWindow &window)
{
    remember();
    rememberOwn(window);
    m_activatedWindow = &window;
    m_activation.start();
    window.requestActivate();
    ownwindows::requestActivation(ownwindows::idOf(window), m_connection.userTime());
}

void X11Application::giveKeyboardBack(QWindow &window)
{
    const bool isToHaveIt =
        m_activation.isActive() && m_activatedWindow == &window && !hasUserTurnedElsewhere();
    if (!isToHaveIt && m_workspace.activeWindow() != ownwindows::idOf(window))
        return;
    m_heldKeys.begin();
    m_hold.end();
    m_activation.stop();
    if (QWindow *own = ownBefore(window)) {
        own->requestActivate();
        ownwindows::requestActivation(ownwindows::idOf(*own), m_connection.userTime());
    } else {
        activatePrevious();
    }
}

void X11Application::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (notify->window == m_connection.root() && notify->atom == m_connection.atom("_NET_CURRENT_DESKTOP"))
        onWorkspaceChanged();
}

void X11Application::onWorkspaceChanged()
{
    const quint32 now = workspaceInUse();
    if (now == m_workspaceInUse)
        return;
    m_workspaceInUse = now;
    // Neither the focus nor a paste returns to a place that the user has left.
    m_lastForeign = foreignActiveWindow();
    m_previousWindow.reset();
    m_taken.clear();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const bool isAnyShown = std::ranges::any_of(windows, [](const QWindow *window) {
        return window->isVisible() && !(window->flags() & Qt::WindowDoesNotAcceptFocus);
    });
    if (!isAnyShown)
        return;
    m_hold.end();
    m_activation.stop();
    m_isActive = false;
    Q_EMIT didResignActive();
}

void X11Application::remember()
{
    if (const std::optional<ForeignWindow> other = foreignActiveWindow())
        m_lastForeign = other;
    m_previousWindow = m_lastForeign;
}

void X11Application::rememberOwn(QWindow &window)
{
    QWindow *own = foreignActiveWindow() ? nullptr : QGuiApplication::focusWindow();
    // If the window has the focus already, what had it before stays the same.
    if (own == &window)
        return;
    m_taken.removeIf([&window](const Taken &each) { return each.window.isNull() || each.window == &window; });
    if (own)
        m_taken.append(Taken{.window = &window, .from = own});
}

QWindow *X11Application::ownBefore(const QWindow &window) const
{
    // A window that has closed in the meantime may have taken the focus from yet another.
    const QWindow *taker = &window;
    for (qsizetype step = 0; step < m_taken.size(); ++step) {
        const auto found =
            std::ranges::find_if(m_taken, [taker](const Taken &each) { return each.window == taker; });
        if (found == m_taken.cend() || !found->from)
            return nullptr;
        if (found->from->isVisible() && found->from != &window)
            return found->from;
        taker = found->from;
    }
    return nullptr;
}

void X11Application::activatePrevious()
{
    if (m_previousWindow && isOpen(*m_previousWindow) && isOnThisWorkspace(m_previousWindow->id))
        ownwindows::requestActivation(m_previousWindow->id, m_connection.userTime());
}

bool X11Application::isOnThisWorkspace(xcb_window_t window) const
{
    constexpr quint32 kOnAll = 0xFFFFFFFF;
    const std::optional<quint32> workspace =
        m_connection.property32(window, m_connection.atom("_NET_WM_DESKTOP"));
    return !workspace || workspace == kOnAll || workspace == workspaceInUse();
}

quint32 X11Application::workspaceInUse() const
{
    return m_connection.property32(m_connection.root(), m_connection.atom("_NET_CURRENT_DESKTOP"))
        .value_or(0);
}

void X11Application::onActiveWindowChanged()
{
    if (const std::optional<ForeignWindow> other = foreignActiveWindow())
        m_lastForeign = other;
    if (isOwnWindowActive()) {
        m_elsewhere.stop();
        if (isActivationDone()) {
            m_activation.stop();
            if (QGuiApplication::focusWindow())
                m_hold.end();
        }
        setActive(true);
    } else if (!m_elsewhere.isActive()) {
        // A switch passes through other windows, or none: after quickly hiding and showing the panel, the
        // report that it was hidden arrives when it is shown again.
        m_elsewhere.start();
    }
}

void X11Application::setActive(bool isActive)
{
    if (m_isActive == isActive)
        return;
    m_isActive = isActive;
    qCDebug(x11Log) << "keyboard in one of our windows:" << isActive;
    if (!isActive)
        Q_EMIT didResignActive();
}

bool X11Application::isActivationDone() const
{
    return !m_activation.isActive() || !m_activatedWindow
           || (m_workspace.activeWindow() == ownwindows::idOf(*m_activatedWindow)
               && QGuiApplication::focusWindow() == m_activatedWindow);
}

bool X11Application::isOwnWindowActive() const
{
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    return window && m_workspace.processOf(*window) == QCoreApplication::applicationPid();
}

bool X11Application::hasUserTurnedElsewhere() const
{
    const std::optional<ForeignWindow> window = foreignActiveWindow();
    return window && (!m_previousWindow || window->id != m_previousWindow->id);
}

std::optional<X11Application::ForeignWindow> X11Application::foreignActiveWindow() const
{
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    const std::optional<qint64> process = window ? m_workspace.processOf(*window) : std::nullopt;
    if (!process || *process == QCoreApplication::applicationPid())
        return std::nullopt;
    return ForeignWindow{.id = *window, .process = *process};
}

bool X11Application::isOpen(const ForeignWindow &window) const
{
    // Programs may keep a window that they have closed; the window manager then marks it as withdrawn, or
    // drops its state.
    constexpr quint32 kWithdrawn = 0;
    const quint32 state =
        m_connection.property32(window.id, m_connection.atom("WM_STATE")).value_or(kWithdrawn);
    return state != kWithdrawn && m_workspace.processOf(window.id) == window.process;
}

} // namespace vesk
