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
    explicit PrimarySelection(X11Connection &connection);

    /// Process that owns it; none if nobody does.
    [[nodiscard]] std::optional<qint64> ownerProcess() const;
    /// Server time at which it was claimed; 0 if that is not known.
    [[nodiscard]] xcb_timestamp_t timestamp() const { return m_timestamp; }

    /// The text. None if the owner has no text, declares it secret, or stalls. A text beyond
    /// `kMaximumTextBytes` comes cut beyond that size.
    QCoro::Task<std::optional<QString>> text();

private:
    void onEvent(const xcb_generic_event_t *event);
    QCoro::Task<> askTimestamp();

    X11Connection &m_connection;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    xcb_timestamp_t m_timestamp = 0;
};

} // namespace vesk
