// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <xcb/xcb.h>

#include <chrono>

namespace vesk {

class X11Connection;

/// One reading of a selection from its owner. Waits for the owner as long as data keeps coming, and
/// gives up when it stalls.
class SelectionTransfer final : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Complete,
        /// There is no owner, or it has no such form.
        Refused,
        /// The owner did not answer, or stopped halfway.
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

    /// The selection's data in the form `target`; worth something only if complete. Data beyond
    /// `limit` bytes is not waited for, and what has come is returned. `patience` is the longest silence
    /// of the owner that is borne.
    [[nodiscard]] static QCoro::Task<Data> read(X11Connection &connection, xcb_atom_t selection,
                                                xcb_atom_t target, qsizetype limit,
                                                std::chrono::milliseconds patience = kDeadline);

    ~SelectionTransfer() override;

Q_SIGNALS:
    void finished();

private:
    SelectionTransfer(X11Connection &connection, xcb_atom_t selection, xcb_atom_t target, qsizetype limit,
                      std::chrono::milliseconds patience);

    void onEvent(const xcb_generic_event_t *event);
    void onNotify(xcb_atom_t property);
    void onChunk();
    /// Takes the property of the transfer, which tells the owner that it may go on.
    [[nodiscard]] Data takeProperty();
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
    QTimer m_stall;
    bool m_isIncremental = false;
    bool m_isFinished = false;
    bool m_hasEnded = false;
    Data m_data;
};

} // namespace vesk
