// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/clipboardholder.h"

namespace vesk {

/// The desktop's clipboard manager: takes over the clipboard of a program that quits.
class ClipboardManager final
{
public:
    enum class Manner {
        Ordinary,
        /// Running, but never answers.
        Hanging,
    };

    /// Has become the manager when this returns, unless the server did not answer.
    ClipboardManager(const QString &displayName, Manner manner);

private:
    void save(DisplayConnection &display, const xcb_selection_request_event_t &request);

    const QString m_displayName;
    std::unique_ptr<ClipboardHolder> m_saved;
    // Must end before what it uses.
    std::unique_ptr<SelectionThread> m_thread;
};

} // namespace vesk
