// SPDX-License-Identifier: MIT
#include "platform/x11/x11application.h"

#include "platform/freedesktop/applicationservice.h"
#include "platform/x11/ownwindows.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWindow>

namespace vesk {

X11Application::X11Application(X11Connection &connection, X11Workspace &workspace,
                               ApplicationService &service)
    : m_connection(connection)
    , m_workspace(workspace)
    , m_hold(connection)
    , m_heldKeys(connection)
{
    // Long enough for the window manager to do all that it was asked to, too short to be seen when the
    // user turns elsewhere.
    constexpr std::chrono::milliseconds kSettled{100};
    m_elsewhere.setSingleShot(true);
    m_elsewhere.setInterval(kSettled);
    connect(&m_elsewhere, &QTimer::timeout, this, [this] {
        // News of an earlier switch may be all that was heard so far.
        if (isOwnWindowActive())
            return;
        // The keyboard may have come and gone before either was read.
        if (m_activation.isActive() && hasUserTurnedElsewhere()) {
            m_activation.stop();
            m_isActive = true;
        }
        setActive(false);
    });
    constexpr std::chrono::milliseconds kActivation{500};
    m_activation.setSingleShot(true);
    m_activation.setInterval(kActivation);
    connect(&workspace, &X11Workspace::activeWindowChanged, this, &X11Application::onActiveWindowChanged);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *window) {
        if (!window)
            return;
        // Window managers may give the keyboard to another once more before they are done.
        if (isOwnWindowActive())
            m_hold.end();
        // News of what was active before may be all that was heard so far; the time begins anew.
        if (m_elsewhere.isActive())
            m_elsewhere.start();
        // The active window may be another again before its change to ours was read.
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
    // Window managers differ in whom they give the keyboard to when a window goes, so it is said.
    m_returnedTo = hadKeyboard ? m_previousWindow : std::nullopt;
    if (m_returnedTo && isOpen(*m_returnedTo))
        ownwindows::requestActivation(m_returnedTo->id, m_connection.userTime());
    m_previousWindow.reset();
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

bool X11Application::holdKeys()
{
    // Qt lets go of a window that is hidden only when the server says so.
    const QWindow *window = QGuiApplication::focusWindow();
    return !(window && window->isVisible()) && m_hold.begin();
}

void X11Application::activate(QWindow &window)
{
    if (const std::optional<ForeignWindow> other = foreignActiveWindow()) {
        m_previousWindow = other;
        m_previousOwnWindow = nullptr;
    } else if (QWindow *own = QGuiApplication::focusWindow(); own != &window) {
        m_previousOwnWindow = own;
    }
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
    if (m_previousOwnWindow && m_previousOwnWindow->isVisible()) {
        m_previousOwnWindow->requestActivate();
        ownwindows::requestActivation(ownwindows::idOf(*m_previousOwnWindow), m_connection.userTime());
    } else if (m_previousWindow && isOpen(*m_previousWindow)) {
        ownwindows::requestActivation(m_previousWindow->id, m_connection.userTime());
    }
}

void X11Application::onActiveWindowChanged()
{
    if (isOwnWindowActive()) {
        m_elsewhere.stop();
        m_activation.stop();
        if (QGuiApplication::focusWindow())
            m_hold.end();
        setActive(true);
    } else if (!m_elsewhere.isActive()) {
        // A switch passes through other windows, or none: after a quick hide and show the news of the
        // hide comes when the panel is up again.
        m_elsewhere.start();
    }
}

void X11Application::setActive(bool isActive)
{
    if (m_isActive == isActive)
        return;
    m_isActive = isActive;
    if (!isActive)
        Q_EMIT didResignActive();
}

bool X11Application::isOwnWindowActive() const
{
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    return window && m_workspace.processOf(*window) == QCoreApplication::applicationPid();
}

bool X11Application::hasUserTurnedElsewhere() const
{
    const std::optional<ForeignWindow> window = foreignActiveWindow();
    return window && !(m_previousWindow && window->id == m_previousWindow->id);
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
    // Programs may keep a window that they have closed; the window manager says then that it is withdrawn,
    // or nothing any more.
    constexpr quint32 kWithdrawn = 0;
    const quint32 state =
        m_connection.property32(window.id, m_connection.atom("WM_STATE")).value_or(kWithdrawn);
    return state != kWithdrawn && m_workspace.processOf(window.id) == window.process;
}

} // namespace vesk
