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
struct SelectedText;

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

    /// What came of reading a selection.
    struct Reading
    {
        enum class Lack {
            /// Nothing was missing, or nothing was selected.
            None,
            /// The application left a question without an answer.
            NoAnswer,
            /// The application says that something is selected, and did not hand it over.
            NotGiven,
            /// The application was not made to copy, since what is on the pasteboard could not have been put
            /// back.
            PasteboardInTheWay,
        };

        /// Without white space at its ends; nullopt if that leaves nothing.
        std::optional<QString> text = {};
        /// Why there is no text although something may be selected.
        Lack lack = Lack::None;
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

    /// The selected text, or else what the user has copied within the last 8 seconds. There is none
    /// without the user's trust. Where the selection cannot be read, the application is made to copy it;
    /// the pasteboard then has what it had before. In a browser's address bar, the text is the whole address
    /// even where the browser shows only a part. Texts beyond `kMaximumTextBytes` may be cut beyond that
    /// size.
    QCoro::Task<Reading> readSelection();

private:
    /// The selected text, by the way that fits; nullopt if there is none.
    QCoro::Task<std::optional<QString>> readSelected(EventPoster::Target target, SelectedText selected);

    Needs m_needs;
    SyntheticCopy m_copy;
    /// Of the reading that is under way, or the last one.
    bool m_wasPasteboardInTheWay = false;
};

} // namespace vesk
