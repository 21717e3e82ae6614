// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace vesk {

/// The test's own connection to the X server, separate from all programs on the desktop.
class DisplayConnection final
{
public:
    /// `name` is as in ":7". Null if the server does not answer.
    [[nodiscard]] static std::unique_ptr<DisplayConnection> open(const QString &name);
    ~DisplayConnection();
    Q_DISABLE_COPY_MOVE(DisplayConnection)

    /// Returns true as soon as `condition` holds, false after `bound`. The condition is evaluated after each
    /// event on the root window (a window appeared, disappeared or was activated) and every 5 ms.
    [[nodiscard]] bool waitUntil(std::chrono::milliseconds bound, const std::function<bool()> &condition);

    /// The text of a selection ("PRIMARY", "CLIPBOARD"); nullopt if it has no owner, or its owner did not
    /// provide a text within `bound`.
    [[nodiscard]] std::optional<QString> readSelection(const char *selection,
                                                       std::chrono::milliseconds bound);

    /// The unconverted contents of one form of a selection ("text/html"); nullopt as above.
    [[nodiscard]] std::optional<QByteArray> readForm(const char *selection, const char *form,
                                                     std::chrono::milliseconds bound);

    /// The current contents of the whole screen; null if the server refused.
    [[nodiscard]] QImage screenshot() const;

    [[nodiscard]] xcb_atom_t atom(const char *name) const;
    [[nodiscard]] xcb_connection_t *xcb() const { return m_connection; }
    /// A window that is never shown, for owning and requesting selections.
    [[nodiscard]] xcb_window_t window() const { return m_window; }
    [[nodiscard]] xcb_window_t root() const { return m_screen->root; }
    [[nodiscard]] QSize size() const { return {m_screen->width_in_pixels, m_screen->height_in_pixels}; }

private:
    explicit DisplayConnection(xcb_connection_t *connection);

    [[nodiscard]] QByteArray takeSelectionProperty(xcb_atom_t property);

    xcb_connection_t *m_connection;
    xcb_screen_t *m_screen;
    xcb_window_t m_window;
};

/// Frees a reply or error of xcb, which is allocated with malloc.
struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};

template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

} // namespace vesk
