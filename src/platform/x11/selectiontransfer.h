// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/readingallowance.h"

#include <QCoroTask>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <xcb/xcb.h>

#include <chrono>

namespace vesk {

class X11Connection;

/// Reads one form of a selection from its owner. Waits as long as data keeps coming, within the allowance.
class SelectionTransfer final : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Complete,
        /// There is more data than the limit; only the beginning was read.
        Cut,
        /// There is no owner, or it does not have this form.
        Refused,
        /// The owner did not answer, stopped halfway, or took too long.
        Stalled,
    };

    struct Data
    {
        Outcome outcome = Outcome::Refused;
        /// The type of the data, according to the owner.
        xcb_atom_t type = XCB_ATOM_NONE;
        /// Bits per unit: 8, 16 or 32.
        quint8 format = 0;
        QByteArray bytes;
    };

    /// How long an owner may be silent before it counts as hung.
    static constexpr std::chrono::milliseconds kDeadline{100};
    /// How long an owner may take in all for a small answer.
    static constexpr std::chrono::milliseconds kTotal{1000};

    /// Reads the selection in the form `target`. If there are more than `limit` bytes, or more than the
    /// allowance has left, the outcome is `Cut` and `bytes` has more than that limit but not everything. The
    /// allowance must outlive the reading.
    [[nodiscard]] static QCoro::Task<Data> read(X11Connection &connection, xcb_atom_t selection,
                                                xcb_atom_t target, qsizetype limit,
                                                ReadingAllowance &allowance);
    /// The same with an allowance of its own, in which `patience` is the longest silence.
    [[nodiscard]] static QCoro::Task<Data> read(X11Connection &connection, xcb_atom_t selection,
                                                xcb_atom_t target, qsizetype limit,
                                                std::chrono::milliseconds patience = kDeadline);

    ~SelectionTransfer() override;

Q_SIGNALS:
    void finished();

private:
    SelectionTransfer(X11Connection &connection, xcb_atom_t selection, xcb_atom_t target, qsizetype limit,
                      ReadingAllowance &allowance);

    void onEvent(const xcb_generic_event_t *event);
    void onNotify(xcb_atom_t property);
    void onChunk();
    /// Reads slightly more than `limit` bytes at most from the property and deletes it, which tells the owner
    /// to continue. The outcome is `Complete`, `Cut`, or `Refused` if there is no property.
    [[nodiscard]] Data takeProperty(qsizetype limit);
    /// Keeps receiving and discarding data after the reading was given up. An owner that is left halfway may
    /// not serve the next reader, and some crash when their reader vanishes.
    void linger();
    /// Must be called when the owner has nothing more to send.
    void end(Outcome outcome);
    void finish(Outcome outcome);

    QPointer<X11Connection> m_connection;
    /// A new one for each transfer, so that a late answer is not mistaken for that of another transfer.
    xcb_window_t m_window;
    xcb_atom_t m_property;
    qsizetype m_limit;
    /// Limit the owner's silence and the total time, which grows with the received data.
    QTimer m_stall;
    QTimer m_total;
    /// Must not be used after the reading has finished.
    ReadingAllowance &m_allowance;
    bool m_isIncremental = false;
    bool m_isFinished = false;
    bool m_hasEnded = false;
    Data m_data;
};

} // namespace vesk
