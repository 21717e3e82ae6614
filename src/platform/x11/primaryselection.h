// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class X11Connection;

/// The selection that X11 applications claim when text is selected in them. Many keep it after the
/// text is no longer selected, so it counts only together with who owns it and since when.
class PrimarySelection final : public QObject
{
    Q_OBJECT

public:
    /// One time that somebody claimed it.
    struct Claim
    {
        /// `XCB_WINDOW_NONE` if nobody owns it.
        xcb_window_t owner = XCB_WINDOW_NONE;
        /// By the server; 0 if it is not known.
        xcb_timestamp_t time = 0;
        /// Differs from claim to claim.
        quint64 number = 0;

        friend bool operator==(const Claim &, const Claim &) = default;
    };

    explicit PrimarySelection(X11Connection &connection);

    /// The claim that holds now.
    [[nodiscard]] const Claim &claim() const { return m_claim; }

    /// The text that belongs to the claim of now. Nullopt if the owner has no text, declares it secret or
    /// stalls, or if the selection is claimed again before all of it is read. A text beyond
    /// `kMaximumTextBytes` comes cut beyond that size.
    QCoro::Task<std::optional<QString>> text();

    /// Tells the text of the claim of now from others. Nullopt as above. Reads no more than the beginning of
    /// a long text, and does not ask whether it is secret.
    QCoro::Task<std::optional<size_t>> fingerprint();

Q_SIGNALS:
    /// Somebody has claimed it, perhaps its owner once more, or nobody owns it any more.
    void claimed();

private:
    void onEvent(const xcb_generic_event_t *event);
    QCoro::Task<> askTime();

    X11Connection &m_connection;
    Claim m_claim;
};

} // namespace vesk
