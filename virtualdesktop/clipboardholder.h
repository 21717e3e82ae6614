// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/selectionthread.h"

#include <QByteArray>
#include <QMap>

namespace vesk {

/// What a user has copied or selected in another program, which owns the selection and serves it.
class ClipboardHolder final
{
public:
    using Forms = QMap<QByteArray, QByteArray>;

    /// The selection is owned when this returns. Null if the server did not answer. The silent forms are
    /// offered too, but a request for one gets no answer.
    [[nodiscard]] static std::unique_ptr<ClipboardHolder> hold(const QString &displayName, const Forms &forms,
                                                               const char *selection = "CLIPBOARD",
                                                               const QList<QByteArray> &silent = {});

    /// A program that hangs keeps the clipboard and answers nobody.
    void setHanging(bool isHanging) { m_isHanging = isHanging; }

private:
    ClipboardHolder(Forms forms, QList<QByteArray> silent)
        : m_forms(std::move(forms))
        , m_silent(std::move(silent))
    {
    }

    void answer(DisplayConnection &display, const xcb_selection_request_event_t &request) const;

    const Forms m_forms;
    const QList<QByteArray> m_silent;
    std::atomic_bool m_isHanging = false;
    std::unique_ptr<SelectionThread> m_thread;
};

} // namespace vesk
