// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/primaryselection.h"

#include <QCoroTask>

#include <QObject>

#include <optional>

namespace vesk {

/// Tells whether what Emacs offers in PRIMARY is still its region. Emacs claims PRIMARY after each command
/// while there is a region, and most commands that end the region claim it once more with the same text.
class EmacsSelection final : public QObject
{
    Q_OBJECT

public:
    /// `primary` must outlive this object.
    explicit EmacsSelection(PrimarySelection &primary);

    /// Must be called when the user presses a key or button in the window with which Emacs owns PRIMARY.
    void addPress(xcb_timestamp_t time);
    /// Removes the last press, which turned out not to be meant for Emacs.
    void removePress();
    [[nodiscard]] xcb_timestamp_t lastPress() const { return m_press.time; }

    /// Must be called when Emacs claims PRIMARY. Compares the text of the claim with that of the previous
    /// one.
    QCoro::Task<> addClaim();
    void clear();

    /// Returns whether the current claim belongs to a region. Waits a moment for a running comparison.
    QCoro::Task<bool> hasRegion();

private:
    struct Press
    {
        xcb_timestamp_t time = 0;
        /// How many claims came after it and before the next one.
        int claims = 0;
        /// Time of the first of the presses directly before it that were not followed by a claim; 0 if there
        /// are none.
        xcb_timestamp_t unclaimedSince = 0;
    };

    [[nodiscard]] bool isFromDeselecting() const;

    PrimarySelection &m_primary;
    Press m_press;
    Press m_pressBefore;
    /// The number of the last claim that was compared, and what is known about it.
    std::optional<quint64> m_compared;
    std::optional<size_t> m_fingerprint;
    bool m_hasRegion = false;
    /// Whether a claim since then could not be compared.
    bool m_isLastMissed = false;
};

} // namespace vesk
