// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventposter.h"
#include "platform/x11/synthetickeys.h"

#include <QList>
#include <QObject>
#include <QString>

#include <xcb/xcb.h>

#include <chrono>
#include <optional>

namespace vesk {

class Accessibility;
class Clock;
class KeyboardHold;
class RawInput;
class WindowPing;
class X11Connection;
class X11Workspace;

/// Sends keys with XTEST, which applications cannot tell from the user's.
class X11EventPoster final : public QObject, public EventPoster
{
    Q_OBJECT

public:
    /// All must outlive this object. `hold` is null if the user's keys are not held.
    struct Needs
    {
        X11Connection &connection;
        RawInput &input;
        X11Workspace &workspace;
        Accessibility &accessibility;
        Clock &clock;
        KeyboardHold *hold = nullptr;
    };

    explicit X11EventPoster(const Needs &needs);

    [[nodiscard]] Target target() override;
    QCoro::Task<bool> post(Command command, Target target, std::function<bool()> isWanted) override;

private:
    /// On the monotonic clock.
    using Instant = std::chrono::microseconds;
    enum class Attempt {
        Posted,
        /// A temporary obstacle.
        Early,
        Refused,
    };

    /// Waits until no key except modifiers has been down for a while; returns false if one stays down.
    QCoro::Task<bool> waitForLetters(Instant end);
    /// Whether the window's application is processing events.
    QCoro::Task<bool> waitForAnswer(WindowPing &ping);
    /// The role of the focused element in an application; nullopt if it could not be determined.
    QCoro::Task<std::optional<QString>> focusedRole(qint64 processIdentifier);
    /// Whether the user's keys are held back, and whether there are any yet.
    [[nodiscard]] bool isHolding() const;
    [[nodiscard]] bool keepsPress() const;
    [[nodiscard]] bool hasLetterDown() const;
    /// Whether a modifier is down that turns letters into commands.
    [[nodiscard]] bool hasCommandModifierDown() const;
    /// Whether the server delivers keys to the window or to one inside it.
    [[nodiscard]] bool hasInputFocus(xcb_window_t window) const;
    [[nodiscard]] Attempt tryToPost(const QList<uint32_t> &keysyms, xcb_window_t window,
                                    xcb_timestamp_t lastPress);

    Needs m_needs;
    SyntheticKeys m_keys;
};

} // namespace vesk
