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
        co_return co_await AtSpi::parent(m_atSpi.ask(), element);
    }
    qint64 process = element.processIdentifier;
    if (process == 0) {
        const std::optional<RunningApplication> frontmost = m_workspace.frontmostApplication();
        if (!frontmost)
            co_return std::nullopt;
        process = frontmost->processIdentifier;
    }
    // An application that is not on the bus still has its X11 selection: the application itself then
    // stands for what has the keyboard in it.
    co_return co_await m_atSpi.focusedElement(m_atSpi.ask(), process);
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
        co_return co_await AtSpi::documentUrl(m_atSpi.ask(), element);
    co_return co_await AtSpi::role(m_atSpi.ask(), element);
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
    const AtSpiQuestion question = m_atSpi.ask();
    const bool isOnBus = !element.address.isEmpty();
    if (isOnBus) {
        // Asked before anything is read: toolkits put a password field's clear text into PRIMARY. What
        // does not say what it is could be one.
        const std::optional<QString> role = co_await AtSpi::role(question, element);
        if (self.isNull() || !role)
            co_return std::nullopt;
        if (role == "password text"_L1)
            co_return QString();
    }
    if (isPrimaryFresh(element.processIdentifier)) {
        const std::optional<QString> text = co_await m_primary.text();
        if (self.isNull() || !isProcessTrusted())
            co_return std::nullopt;
        if (text)
            co_return text;
    }
    if (!isOnBus)
        co_return std::nullopt;
    co_return co_await AtSpi::selectedText(question, element);
}

bool X11Accessibility::isPrimaryFresh(qint64 processIdentifier) const
{
    if (m_primary.timestamp() == 0 || m_primary.ownerProcess() != processIdentifier)
        return false;
    return isAtOrAfter(m_primary.timestamp(), m_input.lastPress())
           && isAtOrAfter(m_primary.timestamp(), m_workspace.activationTime());
}

} // namespace vesk
