// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/virtualdesktop.h"

#include <QStringList>

namespace vesk {

/// A window of a program of its own that writes down which keys reach it. It is not on the accessibility bus
/// and has nothing selected.
class KeyRecorder final
{
public:
    /// Null if the window did not come up and take the keyboard. `windowClass` is what the window says of its
    /// program. An empty class makes a window that the window manager leaves alone, and that does not take
    /// the keyboard by itself.
    [[nodiscard]] static std::unique_ptr<KeyRecorder> open(VirtualDesktop &desktop, const QString &title,
                                                           const QByteArray &windowClass = "Recorder");
    ~KeyRecorder();
    Q_DISABLE_COPY_MOVE(KeyRecorder)

    /// The keys that reached the window so far, modifiers left out, each with the modifiers that it came
    /// with: "x", or "Control+Alt+x".
    [[nodiscard]] QStringList keys();
    void forget()
    {
        static_cast<void>(keys());
        m_keys.clear();
    }
    /// Takes all keys for this window, as a menu does. False if another program has them.
    [[nodiscard]] bool grabKeyboard();
    void ungrabKeyboard();
    /// Waits until a key is the last that reached the window.
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
