// SPDX-License-Identifier: MIT
#include "platform/x11/x11accessibility.h"

#include "platform/freedesktop/consent.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"
#include "platform/x11/xreply.h"

#include <QPointer>

namespace vesk {

using namespace Qt::StringLiterals;

X11Accessibility::X11Accessibility(X11Connection &connection, RawInput &input, X11Workspace &workspace,
                                   Consent &consent)
    : m_input(input)
    , m_workspace(workspace)
    , m_consent(consent)
    , m_primary(connection)
{
    connect(&consent, &Consent::changed, this, [this] {
        followConsent();
        Q_EMIT trustChanged();
    });
    followConsent();
}

bool X11Accessibility::isProcessTrusted() const
{
    return m_consent.isGiven();
}

std::optional<QString> X11Accessibility::focusedWindowTitle(qint64 processIdentifier) const
{
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    if (!isProcessTrusted() || !window || m_workspace.processOf(*window) != processIdentifier)
        return std::nullopt;
    const QString title = m_workspace.titleOf(*window);
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

QCoro::Task<std::optional<AccessibleElement>> X11Accessibility::copyElement(AccessibleElement element,
                                                                            ElementAttribute attribute)
{
    if (!isProcessTrusted())
        co_return std::nullopt;
    if (attribute == ElementAttribute::Parent) {
        if (element.address.isEmpty())
            co_return std::nullopt;
        co_return co_await m_atSpi.parent(element);
    }
    qint64 process = element.processIdentifier;
    if (process == 0) {
        const std::optional<RunningApplication> frontmost = m_workspace.frontmostApplication();
        if (!frontmost)
            co_return std::nullopt;
        process = frontmost->processIdentifier;
    }
    const std::optional<AccessibleElement> focused = co_await m_atSpi.focusedElement(process);
    // An application that is not on the bus still has its X11 selection: the application itself then
    // stands for what has the keyboard in it.
    if (!focused)
        co_return applicationElement(process);
    co_return focused;
}

QCoro::Task<std::optional<QString>> X11Accessibility::copyString(AccessibleElement element,
                                                                 StringAttribute attribute)
{
    if (!isProcessTrusted())
        co_return std::nullopt;
    if (attribute == StringAttribute::SelectedText)
        co_return co_await selectedText(element);
    if (element.address.isEmpty())
        co_return std::nullopt;
    if (attribute == StringAttribute::Url)
        co_return co_await m_atSpi.documentUrl(element);
    co_return co_await m_atSpi.role(element);
}

void X11Accessibility::followConsent()
{
    m_input.setListening(isProcessTrusted());
    if (isProcessTrusted())
        m_atSpi.start();
    else
        m_atSpi.stop();
}

QCoro::Task<std::optional<QString>> X11Accessibility::selectedText(AccessibleElement element)
{
    const QPointer<X11Accessibility> self(this);
    const bool isOnBus = !element.address.isEmpty();
    std::optional<QString> elementRole;
    if (isOnBus) {
        // Asked before anything is read: toolkits put a password field's clear text into PRIMARY.
        elementRole = co_await m_atSpi.role(element);
        if (self.isNull())
            co_return std::nullopt;
        if (elementRole == "password text"_L1)
            co_return QString();
    }
    if (isPrimaryFresh(element.processIdentifier)) {
        const std::optional<QString> text = co_await m_primary.text();
        if (self.isNull() || text)
            co_return text;
    }
    if (!isOnBus)
        co_return std::nullopt;
    const std::optional<QString> selected = co_await m_atSpi.selectedText(element);
    // Browsers say of a page that nothing is selected although all of it is.
    if (selected && selected->isEmpty() && elementRole == kWebAreaRole)
        co_return std::nullopt;
    co_return selected;
}

bool X11Accessibility::isPrimaryFresh(qint64 processIdentifier) const
{
    if (m_primary.timestamp() == 0 || m_primary.ownerProcess() != processIdentifier)
        return false;
    return isAtOrAfter(m_primary.timestamp(), m_input.lastPress())
           && isAtOrAfter(m_primary.timestamp(), m_workspace.activationTime());
}

} // namespace vesk
