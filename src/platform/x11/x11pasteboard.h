// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pasteboard.h"
#include "platform/x11/selectionserver.h"

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

namespace vesk {

class X11Connection;

/// A selection that is used like a pasteboard: CLIPBOARD, PRIMARY, which the middle mouse button
/// pastes, or XdndSelection, which holds what is being dragged. It holds one item at most, whose types are
/// its owner's targets.
class X11Pasteboard final : public Pasteboard
{
    Q_OBJECT

public:
    enum class Kind {
        Clipboard,
        Primary,
        Dragged,
    };

    explicit X11Pasteboard(X11Connection &connection, Kind kind = Kind::Clipboard);

    [[nodiscard]] qint64 changeCount() const override { return m_changeCount; }
    [[nodiscard]] bool hasContents() const override;
    [[nodiscard]] Origin origin() const override;
    QCoro::Task<QList<PasteboardItem>> pasteboardItems() override;
    using Pasteboard::string;
    QCoro::Task<std::optional<QString>> string(Patience patience) override;
    void clearContents() override;
    void setString(const QString &text) override;
    /// Items beyond the first add the types that those before them lack.
    void writeObjects(const QList<PasteboardItem> &items) override;
    /// Gives content of ours to the desktop's clipboard manager, if there is one, so that it outlives
    /// this program. Ends when that is done, or after 1 second of silence.
    QCoro::Task<> handOver();
    [[nodiscard]] bool reportsChanges() const override { return true; }

private:
    [[nodiscard]] bool hasOwner(xcb_atom_t selection) const;
    /// The process whose window the user works with; nullopt if there is none.
    [[nodiscard]] std::optional<qint64> frontmostProcess() const;
    [[nodiscard]] Claim claimOf(const xcb_xfixes_selection_notify_event_t &notify) const;
    void onEvent(const xcb_generic_event_t *event);
    void rise();

    X11Connection &m_connection;
    xcb_atom_t m_selection;
    SelectionServer m_server;
    qint64 m_changeCount = 0;
    /// The last change by another application; nullopt before the first.
    std::optional<Origin> m_origin;
    /// When the last owner but one went without another having claimed the selection, by the server's
    /// clock; nullopt if it did not.
    std::optional<xcb_timestamp_t> m_lossTime;
};

} // namespace vesk
