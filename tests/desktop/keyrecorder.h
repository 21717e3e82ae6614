// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/virtualdesktop.h"

#include <QStringList>

namespace vesk {

/// A window of a separate program that records which keys reach it. It is not on the accessibility bus and
/// has no selection.
class KeyRecorder final
{
public:
    /// Null if the window did not appear with the focus. `windowClass` identifies its program. If empty, the
    /// window manager ignores the window, which then does not take the focus by itself.
    [[nodiscard]] static std::unique_ptr<KeyRecorder> open(VirtualDesktop &desktop, const QString &title,
                                                           const QByteArray &windowClass = "Recorder");
    ~KeyRecorder();
    Q_DISABLE_COPY_MOVE(KeyRecorder)

    /// The keys that have reached the window so far, except modifiers, each with its modifiers: "x", or
    /// "Control+Alt+x".
    [[nodiscard]] QStringList keys();
    void forget()
    {
        static_cast<void>(keys());
        m_keys.clear();
    }
    /// Grabs the keyboard for this window, as a menu does. Returns false if another program has grabbed it.
    [[nodiscard]] bool grabKeyboard();
    void ungrabKeyboard();
    /// Waits until a key is the last that has reached the window.
    [[nodiscard]] bool waitFor(const QString &key);

    [[nodiscard]] const Window &window() const { return m_window; }

private:
    explicit KeyRecorder(std::unique_ptr<DisplayConnection> display);

    void create(const QString &title, const QByteArray &windowClass);
    void record(const xcb_key_press_event_t &press);

    const std::unique_ptr<DisplayConnection> m_display;
    Window m_window;
    QStringList m_keys;
};

} // namespace vesk
