// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class X11Connection;

/// The selection that X11 applications claim when text is selected in them. Many keep it after the text is no
/// longer selected, so it is only useful together with its owner and the time of the claim.
class PrimarySelection final : public QObject
{
    Q_OBJECT

public:
    /// One claim of the selection.
    struct Claim
    {
        /// `XCB_WINDOW_NONE` if nobody owns it.
        xcb_window_t owner = XCB_WINDOW_NONE;
        /// Server time; 0 if it is not known.
        xcb_timestamp_t time = 0;
        /// Different for each claim.
        quint64 number = 0;

        friend bool operator==(const Claim &, const Claim &) = default;
    };

    explicit PrimarySelection(X11Connection &connection);

    /// The current claim.
    [[nodiscard]] const Claim &claim() const { return m_claim; }

    /// Reads the text of the current claim. Nullopt if the owner has no text, marks it as secret or stops
    /// answering, or if the selection is claimed again before everything is read. A text of more than
    /// `kMaximumReadBytes` is cut off beyond that size.
    QCoro::Task<std::optional<QString>> text();

    /// Returns a hash of the text of the current claim; nullopt as above. Reads only the beginning of a long
    /// text, and does not ask whether it is secret.
    QCoro::Task<std::optional<size_t>> fingerprint();

Q_SIGNALS:
    /// Emitted when the selection is claimed, possibly by its owner again, and when it loses its owner.
    void claimed();

private:
    void onEvent(const xcb_generic_event_t *event);
    QCoro::Task<> askTime();

    X11Connection &m_connection;
    Claim m_claim;
};

} // namespace vesk
