// SPDX-License-Identifier: MIT
#pragma once

#include "platform/accessibility.h"
#include "platform/freedesktop/atspi.h"
#include "platform/x11/primaryselection.h"

namespace vesk {

class Consent;
class RawInput;
class X11Connection;
class X11Workspace;

/// Other applications' texts: their X11 selection where it can be trusted, the accessibility bus
/// otherwise, and neither without the user's consent.
class X11Accessibility final : public Accessibility
{
    Q_OBJECT

public:
    X11Accessibility(X11Connection &connection, RawInput &input, X11Workspace &workspace, Consent &consent);

    [[nodiscard]] bool isProcessTrusted() const override;
    void askForTrust() override { Q_EMIT trustAsked(); }
    [[nodiscard]] std::optional<QString> focusedWindowTitle(qint64 processIdentifier) const override;
    QCoro::Task<std::optional<AccessibleElement>> copyElement(AccessibleElement element,
                                                              ElementAttribute attribute) override;
    QCoro::Task<std::optional<QString>> copyString(AccessibleElement element,
                                                   StringAttribute attribute) override;

Q_SIGNALS:
    /// The user should be shown the question for consent.
    void trustAsked();

private:
    /// Listens to other applications and the keyboard exactly while the user agrees.
    void followConsent();
    QCoro::Task<std::optional<QString>> selectedText(AccessibleElement element);
    /// Whether the X11 selection is what the user sees selected in this process.
    [[nodiscard]] bool isPrimaryFresh(qint64 processIdentifier) const;

    RawInput &m_input;
    X11Workspace &m_workspace;
    Consent &m_consent;
    PrimarySelection m_primary;
    AtSpi m_atSpi;
};

} // namespace vesk
