// SPDX-License-Identifier: MIT
#pragma once

#include "platform/accessibility.h"
#include "platform/freedesktop/atspi.h"
#include "platform/x11/primaryselection.h"
#include "platform/x11/primarystanding.h"

namespace vesk {

class Consent;
class RawInput;
class X11Connection;
class X11Workspace;

/// Reads other applications' texts using the accessibility bus and the X11 selection, both only with the
/// user's consent. Toolkits put even a password's clear text into the X11 selection, and leave it there.
/// Therefore the selection is trusted on its own only where nothing else can be asked (in terminals and
/// Emacs), and in pages and the like if it was certainly claimed outside a password field. Elsewhere the bus
/// must report the same text.
class X11Accessibility final : public Accessibility
{
    Q_OBJECT

public:
    /// All must outlive this object. `deadlines` apply to each of the two questions with which a selected
    /// text is read; they are longer if something was selected a moment before.
    X11Accessibility(X11Connection &connection, RawInput &input, X11Workspace &workspace, Consent &consent,
                     const AtSpiQuestion::Deadlines &deadlines = {});

    [[nodiscard]] bool isProcessTrusted() const override;
    void askForTrust() override { Q_EMIT trustAsked(); }
    [[nodiscard]] std::optional<QString> focusedWindowTitle(qint64 processIdentifier) const override;
    QCoro::Task<std::optional<AccessibleElement>> copyElement(AccessibleElement element,
                                                              ElementAttribute attribute) override;
    QCoro::Task<std::optional<QString>> copyString(AccessibleElement element,
                                                   StringAttribute attribute) override;
    QCoro::Task<SelectedText> selectedText() override;

Q_SIGNALS:
    /// The question for consent must be shown to the user.
    void trustAsked();

private:
    /// Listens to other applications and the keyboard only while the user agrees.
    void followConsent();
    /// What is selected in a terminal or the like; `own` is what the bus reports, and `isSilent` whether a
    /// question was left unanswered.
    QCoro::Task<SelectedText> terminalText(xcb_window_t window, std::optional<AtSpiSelection> own,
                                           bool isSilent);
    /// The text of a claim that was not made from a password field, if the focused element is not a field;
    /// otherwise nullopt.
    QCoro::Task<std::optional<QString>> harmlessText(AtSpiQuestion question, AccessibleElement element);
    /// `own` is what the bus reports as selected; `isClaimed` is as in `SelectedText`.
    QCoro::Task<SelectedText> confirmedText(AtSpiSelection own, bool isClaimed);
    /// Records whether PRIMARY was claimed from a password field.
    QCoro::Task<> noteOrigin();
    [[nodiscard]] bool isPrimarySecret() const { return m_secret == m_primary.claim().number; }

    RawInput &m_input;
    X11Workspace &m_workspace;
    Consent &m_consent;
    PrimarySelection m_primary;
    PrimaryStanding m_standing;
    AtSpi m_atSpi;
    const AtSpiQuestion::Deadlines m_deadlines;
    /// The number of the last claim made while a password field had the focus, and of the last made while
    /// something else certainly had it.
    std::optional<quint64> m_secret;
    std::optional<quint64> m_harmless;
};

} // namespace vesk
