// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/primaryselection.h"

#include <QCoroTask>

#include <QObject>

#include <optional>

namespace vesk {

/// Whether what Emacs offers in PRIMARY is still its region. After each command Emacs claims PRIMARY again
/// while there is a region, and once more, with the same text, by most of the commands that end it.
class EmacsSelection final : public QObject
{
    Q_OBJECT

public:
    /// `primary` must outlive this object.
    explicit EmacsSelection(PrimarySelection &primary);

    /// The user has pressed a key or a button in the window by which Emacs owns PRIMARY.
    void addPress(xcb_timestamp_t time);
    /// The press that was added last turned out to be meant for others.
    void removePress();
    [[nodiscard]] xcb_timestamp_t lastPress() const { return m_press.time; }

    /// Emacs has claimed PRIMARY. The claim's text is then compared with the one before.
    QCoro::Task<> addClaim();
    /// Forgets everything.
    void clear();

    /// Whether the claim of now comes with a region. Waits a moment for a comparison that is under way.
    QCoro::Task<bool> hasRegion();

private:
    struct Press
    {
        xcb_timestamp_t time = 0;
        /// How many claims came after it and before the next one.
        int claims = 0;
        /// Time of the first of the presses right before it that no claim came after; 0 if there is none.
        xcb_timestamp_t unclaimedSince = 0;
    };

    [[nodiscard]] bool isFromDeselecting() const;

    PrimarySelection &m_primary;
    Press m_press;
    Press m_pressBefore;
    /// Number of the last claim that was compared, and what is known of it.
    std::optional<quint64> m_compared;
    std::optional<size_t> m_fingerprint;
    bool m_hasRegion = false;
    /// Whether a claim since then could not be compared.
    bool m_isLastMissed = false;
};

} // namespace vesk
