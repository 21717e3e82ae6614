// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QObject>
#include <QString>

namespace vesk {

class Application;
class Clock;
class EventPoster;
class Pasteboard;
class PasteboardWatcher;
class Workspace;

/// Pastes a text into the application that the user came from. Owned by the application.
class PasteBack final : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
    struct Needs
    {
        Clock &clock;
        Application &application;
        Workspace &workspace;
        Pasteboard &pasteboard;
        PasteboardWatcher &watcher;
        EventPoster &poster;
    };

    /// Why a text was copied but not pasted.
    enum class Refusal {
        /// The window that the user came from has been closed.
        WindowClosed,
        /// The window lost the focus or does not accept the keys.
        NotTaken,
    };

    explicit PasteBack(const Needs &needs);

    /// Copies `text` to the pasteboard, hides this program and returns. Pastes as soon as the window that the
    /// user came from has the focus again. If that takes more than 1 second, pastes into the application
    /// that is in front then, unless it is or may be a terminal. Never pastes into this program, into another
    /// window if the one that the user came from is closed, or where the text would be taken for a password.
    /// A second call replaces one that is still waiting.
    void pasteIntoPreviousApp(const QString &text);

Q_SIGNALS:
    /// Emitted when the text was not pasted. It is on the pasteboard nevertheless.
    void refused(vesk::PasteBack::Refusal refusal);

private:
    QCoro::Task<> pasteWhenAway();
    [[nodiscard]] bool isWanted(int paste, bool isBack) const;
    [[nodiscard]] bool isFrontmost() const;
    [[nodiscard]] bool isAway() const;

    Needs m_needs;
    /// Counts the calls, so that a waiting call can tell whether it is still the latest.
    int m_paste = 0;
};

} // namespace vesk
