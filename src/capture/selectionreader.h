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

/// Reads what is selected in the frontmost application, and where that is. Owned by the application, one per
/// program.
class SelectionReader final : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
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
        /// Without the address of the page, which takes longer to read.
        CaptureSource source;
        qint64 processIdentifier = 0;
    };

    /// The result of reading a selection.
    struct Reading
    {
        enum class Lack {
            /// The text is there, or nothing was selected.
            None,
            /// The application did not answer.
            NoAnswer,
            /// The application says that something is selected but did not provide it.
            NotGiven,
            /// The application was not asked to copy, because the content of the pasteboard could not have
            /// been restored.
            PasteboardInTheWay,
        };

        /// Trimmed; nullopt if nothing is left.
        std::optional<QString> text = {};
        /// Why there is no text although something may be selected.
        Lack lack = Lack::None;
    };

    explicit SelectionReader(const Needs &needs);

    /// Returns the frontmost application and its window at the time of the call. Nullopt if there is none, it
    /// has no name, or it is this program. The window's title is left out if the user has not agreed to
    /// reading, or if it only repeats the application's name.
    [[nodiscard]] std::optional<SourceAtPress> readSource() const;

    /// Returns the address of the web page that has the focus in this process; nullopt if there is none,
    /// it is neither http nor https, or the answer takes more than 300 ms. May run while the selection is
    /// read.
    QCoro::Task<std::optional<QString>> readPageAddress(qint64 processIdentifier);

    /// Returns the selected text, or else what the user copied within the last 8 seconds. Returns nothing if
    /// the user has not agreed to reading. If the selection cannot be read, makes the application copy it and
    /// then restores the pasteboard. In a browser's address bar, returns the whole address even if the
    /// browser shows only part of it. Texts of more than `kMaximumReadBytes` may be cut off beyond that size.
    QCoro::Task<Reading> readSelection();

private:
    /// The selected text, read in the way that suits the application; nullopt if there is none.
    QCoro::Task<std::optional<QString>> readSelected(EventPoster::Target target, SelectedText selected);

    Needs m_needs;
    SyntheticCopy m_copy;
    /// For the current reading, or the last one.
    bool m_wasPasteboardInTheWay = false;
};

} // namespace vesk
