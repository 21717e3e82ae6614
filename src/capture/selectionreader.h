// SPDX-License-Identifier: MIT
#pragma once

#include "capture/syntheticcopy.h"
#include "notes/capturesource.h"

#include <QCoroTask>

#include <QObject>
#include <QString>

#include <optional>

namespace vesk {

class Accessibility;

/// Reads what is selected in the frontmost application, and where. Owned by the application, one for
/// the program.
class SelectionReader final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all of it outlives it.
    struct Needs
    {
        Accessibility &accessibility;
        Workspace &workspace;
        Pasteboard &pasteboard;
        PasteboardWatcher &watcher;
        EventPoster &poster;
        EventTap &tap;
        Clock &clock;
    };

    /// What was in front of the user when a key was pressed.
    struct SourceAtPress
    {
        /// Without the page's address, which takes time.
        CaptureSource source;
        qint64 processIdentifier = 0;
    };

    explicit SelectionReader(const Needs &needs);

    /// The frontmost application and its window, as they are at the call. None if nothing is
    /// frontmost, it has no name, or it is this program. The window's title is left out without the
    /// user's trust, and where it only repeats the application's name.
    [[nodiscard]] std::optional<SourceAtPress> readSource() const;

    /// The address of the web page around what has the keyboard in an application, within 300 ms;
    /// none if there is none, or it is neither http nor https. Can be asked for while the selection
    /// is being read.
    QCoro::Task<std::optional<QString>> readPageAddress(qint64 processIdentifier);

    /// The selected text without white space at its ends, or else what the user has copied within the
    /// last 8 seconds; none if that is nothing but white space, or the user's trust is missing. Where
    /// the selection cannot be read, the application is made to copy it; the pasteboard then has what
    /// it had before. Texts beyond `kMaximumTextBytes` may be cut beyond that size.
    QCoro::Task<std::optional<QString>> readSelection();

private:
    /// As the platform gives it: empty if surely nothing is selected, none if it cannot tell.
    QCoro::Task<std::optional<QString>> selectedTextViaAccessibility();

    Needs m_needs;
    SyntheticCopy m_copy;
};

} // namespace vesk
