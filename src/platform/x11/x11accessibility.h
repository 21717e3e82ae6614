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

/// Other applications' texts, by the accessibility bus and the X11 selection, and neither without the user's
/// consent. Toolkits put even a password's clear text into the X11 selection, and leave it there. So that
/// counts by itself only where nothing else can be asked, in terminals and Emacs, and in pages and the like
/// if it was claimed outside of a password field for sure. Elsewhere the bus must name the same text.
class X11Accessibility final : public Accessibility
{
    Q_OBJECT

public:
    /// All of it must outlive this object. `deadlines` are those of each of the two questions by which a
    /// selected text is read; they are longer if something was selected a moment before.
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
    /// The user should be shown the question for consent.
    void trustAsked();

private:
    /// Listens to other applications and the keyboard exactly while the user agrees.
    void followConsent();
    /// What is selected in a terminal or the like; `own` is what the bus says about that, and `isSilent`
    /// whether a question was left without an answer.
    QCoro::Task<SelectedText> terminalText(xcb_window_t window, std::optional<AtSpiSelection> own,
                                           bool isSilent);
    /// The text of a claim that was not made out of a password field, if the element that has the keyboard is
    /// no field; else nullopt.
    QCoro::Task<std::optional<QString>> harmlessText(AtSpiQuestion question, AccessibleElement element);
    /// `own` is what the bus says is selected; `isClaimed` as in `SelectedText`.
    QCoro::Task<SelectedText> confirmedText(AtSpiSelection own, bool isClaimed);
    /// Remembers whether PRIMARY was claimed out of a password field.
    QCoro::Task<> noteOrigin();
    [[nodiscard]] bool isPrimarySecret() const { return m_secret == m_primary.claim().number; }

    RawInput &m_input;
    X11Workspace &m_workspace;
    Consent &m_consent;
    PrimarySelection m_primary;
    PrimaryStanding m_standing;
    AtSpi m_atSpi;
    const AtSpiQuestion::Deadlines m_deadlines;
    /// Number of the last claim that was made while a password field had the keyboard, and of the last that
    /// was made while something else had it for sure.
    std::optional<quint64> m_secret;
    std::optional<quint64> m_harmless;
};

} // namespace vesk
