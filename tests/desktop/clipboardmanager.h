// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/clipboardholder.h"

namespace vesk {

/// The desktop's clipboard manager: takes over what a program that quits has on the clipboard.
class ClipboardManager final
{
public:
    enum class Manner {
        Ordinary,
        /// Is there, and never answers.
        Hanging,
    };

    /// Is the manager when this returns. Null if the server did not answer.
    [[nodiscard]] static std::unique_ptr<ClipboardManager> start(const QString &displayName, Manner manner);
    ~ClipboardManager();
    Q_DISABLE_COPY_MOVE(ClipboardManager)

private:
    ClipboardManager(QString displayName, Manner manner, xcb_connection_t *connection);

    void claim();
    void serve();
    void save(const xcb_selection_request_event_t &request);

    const QString m_displayName;
    const Manner m_manner;
    xcb_connection_t *m_connection;
    std::unique_ptr<ClipboardHolder> m_saved;
    std::atomic_bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace vesk
