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

/// Puts a text of Vesk's into the application that the user came from. Owned by the application.
class PasteBack final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all of it outlives it.
    struct Needs
    {
        Clock &clock;
        Application &application;
        Workspace &workspace;
        Pasteboard &pasteboard;
        PasteboardWatcher &watcher;
        EventPoster &poster;
    };

    /// Why a text was only copied.
    enum class Refusal {
        /// The window that the user came from is closed.
        WindowClosed,
        /// The window has lost the keyboard or does not take the keys.
        NotTaken,
    };

    explicit PasteBack(const Needs &needs);

    /// Puts `text` on the pasteboard, where it stays, hides this program and returns; pastes as soon
    /// as the window that the user came from has the keyboard again. If it does not get it within 1
    /// second, pastes into whatever application is frontmost then, unless that is or may be a terminal.
    /// Never pastes into this program, into another window when the one that the user came from is closed,
    /// or where the text would be taken for a password. A second call replaces one that still waits.
    void pasteIntoPreviousApp(const QString &text);

Q_SIGNALS:
    /// The text was not pasted. It is on the pasteboard.
    void refused(vesk::PasteBack::Refusal refusal);

private:
    QCoro::Task<> pasteWhenAway();
    [[nodiscard]] bool isWanted(int paste, bool isBack) const;
    [[nodiscard]] bool isFrontmost() const;
    [[nodiscard]] bool isAway() const;

    Needs m_needs;
    /// Counts the calls, so that one that waits knows whether it still is the last.
    int m_paste = 0;
};

} // namespace vesk
