// SPDX-License-Identifier: MIT
#include "platform/x11/primarystanding.h"

#include "platform/x11/rawinput.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"

#include <algorithm>

namespace vesk {

namespace {

/// Windows are rarely nested deeply.
constexpr int kMaximumDepth = 20;

} // namespace

PrimaryStanding::PrimaryStanding(const Needs &needs)
    : m_needs(needs)
    , m_emacs(needs.primary)
{
    connect(&needs.input, &RawInput::buttonPressed, this, &PrimaryStanding::onButton);
    connect(&needs.input, &RawInput::keyPressed, this, &PrimaryStanding::onKey);
    connect(&needs.input, &RawInput::keyReleased, this, &PrimaryStanding::correctPress);
    connect(&needs.primary, &PrimarySelection::claimed, this, &PrimaryStanding::onClaimed);
    connect(&needs.input, &RawInput::listeningChanged, this, &PrimaryStanding::onListening);
}

bool PrimaryStanding::isFresh(xcb_window_t window) const
{
    const PrimarySelection::Claim &claim = m_needs.primary.claim();
    const xcb_timestamp_t lastPress = m_needs.input.lastPress();
    // There may have been earlier presses, before we listened, that deselected it.
    if (claim.time == 0 || lastPress == 0 || !isOfApplication(window))
        return false;
    // A window that already had the focus when Vesk started had it before the first press.
    const xcb_timestamp_t activation = m_needs.workspace.activationTime();
    return isAtOrAfter(claim.time, lastPress) && (activation == 0 || isAtOrAfter(claim.time, activation));
}

bool PrimaryStanding::isInside(xcb_window_t window) const
{
    return windowsAround(m_needs.primary.claim().owner).contains(window);
}

QCoro::Task<bool> PrimaryStanding::stands(xcb_window_t window)
{
    const PrimarySelection::Claim claim = m_needs.primary.claim();
    if (claim.number <= m_unheard || !isInside(window))
        co_return isFresh(window);
    if (m_emacsWindows.isEmpty())
        co_return m_clicked != claim.number;
    correctPress();
    co_return co_await m_emacs.hasRegion();
}

void PrimaryStanding::onListening()
{
    m_unheard = m_needs.primary.claim().number;
    m_emacs.clear();
    // What is selected now may be deselected later.
    onClaimed();
}

void PrimaryStanding::onButton()
{
    const PrimarySelection::Claim &claim = m_needs.primary.claim();
    if (claim.owner == XCB_WINDOW_NONE || windowUnderPointer() != claim.owner)
        return;
    // A click in the text selects something else or nothing. Only a new selection is claimed again.
    m_clicked = claim.number;
    if (!m_emacsWindows.isEmpty())
        m_emacs.addPress(m_needs.input.lastPress());
}

void PrimaryStanding::onKey(xcb_keycode_t /*key*/, xcb_timestamp_t time)
{
    const std::optional<xcb_window_t> active = m_needs.workspace.reportedWindow();
    const bool isForEmacs = active && m_emacsWindows.contains(*active);
    // Modifiers and the desktop's keys do not count as presses.
    if (isForEmacs && m_needs.input.lastPress() == time)
        m_emacs.addPress(time);
}

void PrimaryStanding::onClaimed()
{
    m_emacsWindows = windowsAround(m_needs.primary.claim().owner);
    if (std::ranges::none_of(m_emacsWindows, [this](xcb_window_t window) { return isOfEmacs(window); }))
        m_emacsWindows.clear();
    if (m_emacsWindows.isEmpty() || !m_needs.input.isListening()) {
        m_emacs.clear();
        return;
    }
    correctPress();
    m_emacs.addClaim();
}

void PrimaryStanding::correctPress()
{
    if (m_emacs.lastPress() != 0 && !isAtOrAfter(m_needs.input.lastPress(), m_emacs.lastPress()))
        m_emacs.removePress();
}

bool PrimaryStanding::isOfApplication(xcb_window_t window) const
{
    const xcb_window_t owner = m_needs.primary.claim().owner;
    if (owner == XCB_WINDOW_NONE)
        return false;
    // A window's number begins with that of the connection that created it.
    const uint32_t own = xcb_get_setup(m_needs.connection.xcb())->resource_id_mask;
    if ((owner & ~own) == (window & ~own))
        return true;
    // Everything that comes from another machine through one tunnel has the tunnel's process.
    const std::optional<qint64> process = m_needs.connection.clientProcess(window);
    return process && !m_needs.workspace.isOfAnotherMachine(window)
           && m_needs.connection.clientProcess(owner) == process;
}

QList<xcb_window_t> PrimaryStanding::windowsAround(xcb_window_t window) const
{
    QList<xcb_window_t> windows;
    while (window != XCB_WINDOW_NONE && windows.size() < kMaximumDepth) {
        windows.append(window);
        const auto cookie = xcb_query_tree(m_needs.connection.xcb(), window);
        const XReply<xcb_query_tree_reply_t> reply(
            xcb_query_tree_reply(m_needs.connection.xcb(), cookie, nullptr));
        window = reply ? reply->parent : xcb_window_t{XCB_WINDOW_NONE};
    }
    return windows;
}

bool PrimaryStanding::isOfEmacs(xcb_window_t window) const
{
    const QByteArray name = m_needs.connection.property(window, XCB_ATOM_WM_CLASS);
    return name.split('\0').value(1).toLower() == QByteArrayLiteral("emacs");
}

xcb_window_t PrimaryStanding::windowUnderPointer() const
{
    xcb_window_t window = m_needs.connection.root();
    for (int depth = 0; depth < kMaximumDepth; ++depth) {
        const auto cookie = xcb_query_pointer(m_needs.connection.xcb(), window);
        const XReply<xcb_query_pointer_reply_t> reply(
            xcb_query_pointer_reply(m_needs.connection.xcb(), cookie, nullptr));
        if (!reply || reply->child == XCB_WINDOW_NONE)
            break;
        window = reply->child;
    }
    return window;
}

} // namespace vesk
