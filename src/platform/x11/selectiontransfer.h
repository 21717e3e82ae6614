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

/// One reading of a selection from its owner. Waits as long as data keeps coming, within what the
/// reading may cost.
class SelectionTransfer final : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Complete,
        /// There is more than the limit; only the beginning was read.
        Cut,
        /// There is no owner, or it has no such form.
        Refused,
        /// The owner did not answer, stopped halfway, or took too long.
        Stalled,
    };

    struct Data
    {
        Outcome outcome = Outcome::Refused;
        /// The type that the owner gave the data.
        xcb_atom_t type = XCB_ATOM_NONE;
        /// Bits of one unit of the data: 8, 16 or 32.
        quint8 format = 0;
        QByteArray bytes;
    };

    /// The longest silence of an owner that is taken for work.
    static constexpr std::chrono::milliseconds kDeadline{100};
    /// How long an owner may take for a small answer, however it drips.
    static constexpr std::chrono::milliseconds kTotal{1000};

    /// The selection's data in the form `target`. Of data beyond `limit` bytes, or beyond what the
    /// allowance has left, the outcome is `Cut`, and `bytes` holds more than that limit but not all. The
    /// allowance must outlive the reading.
    [[nodiscard]] static QCoro::Task<Data> read(X11Connection &connection, xcb_atom_t selection,
                                                xcb_atom_t target, qsizetype limit,
                                                ReadingAllowance &allowance);
    /// The same with an allowance of its own. `patience` is the longest silence.
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
    /// Reads at most a little more than `limit` bytes of the transfer's property and deletes it, which
    /// tells the owner to go on. The outcome is `Complete`, `Cut`, or `Refused` if there is no property.
    [[nodiscard]] Data takeProperty(qsizetype limit);
    /// Goes on taking what the owner still sends, without keeping it, after the reading was given up.
    /// An owner left halfway may not serve the next reading, and some die when their reader vanishes.
    void linger();
    /// The owner has nothing more to send.
    void end(Outcome outcome);
    void finish(Outcome outcome);

    QPointer<X11Connection> m_connection;
    /// Of its own for each transfer, so that no late answer to one is taken for another's.
    xcb_window_t m_window;
    xcb_atom_t m_property;
    qsizetype m_limit;
    /// The owner's silence, and everything together. The data that comes pays for more time.
    QTimer m_stall;
    QTimer m_total;
    /// Not to be used after the reading has finished.
    ReadingAllowance &m_allowance;
    bool m_isIncremental = false;
    bool m_isFinished = false;
    bool m_hasEnded = false;
    Data m_data;
};

} // namespace vesk
