// SPDX-License-Identifier: MIT
#pragma once

#include "capture/selectionreader.h"
#include "commands/command.h"
#include "input/doubleshiftmonitor.h"
#include "notes/noterules.h"
#include "platform/clock.h"
#include "quicknote/quicknotebox.h"

#include <QCoroTask>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QScopeGuard>

#include <chrono>
#include <optional>

namespace vesk {

class Accessibility;
class GlobalKeys;
class NotesStore;
class PanelModel;
class PanelWindow;
class Sounds;
class Toast;

/// Carries out the commands: saves selected text as notes and prompts, and shows the panel and the quick-note
/// box. Owned by the application, one per program.
class VeskServices final : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
    struct Needs
    {
        Clock &clock;
        GlobalKeys &keys;
        EventTap &tap;
        Accessibility &accessibility;
        Workspace &workspace;
        Sounds &sounds;
        NotesStore &store;
        SelectionReader &reader;
        PanelModel &panel;
        PanelWindow &panelWindow;
        QuickNoteBox &quickNote;
        Toast &toast;
    };

    explicit VeskServices(const Needs &needs);

    /// Claims the hot keys, and listens for the double Shift while the user agrees. Must be called once.
    /// Combinations that are taken do nothing.
    void start();

    /// Carries out a command, wherever it came from. While a selection is being read, a command that takes
    /// the focus waits, for at most a second. `Quit` only emits `quitRequested()`.
    void perform(Command command);

    /// Asks the user for permission to read, at most once per run.
    void askForAccessOnce();

Q_SIGNALS:
    void quitRequested();

private:
    using Target = noterules::Target;
    using Source = std::optional<SelectionReader::SourceAtPress>;
    using Instant = std::optional<std::chrono::microseconds>;
    struct Selection
    {
        QString text;
        std::optional<CaptureSource> source;
    };
    /// The result of reading the selection.
    struct Reading
    {
        /// nullopt if there is none.
        std::optional<Selection> selection = {};
        /// Tells the user why there is no selection although something may be selected; empty if there is
        /// nothing to say.
        QString remark = {};
    };

    void performNow(Command command);
    /// Saves the selection of the frontmost application. Ignored within 2 seconds of the last capture. If
    /// nothing is selected, or the user has not agreed to reading, opens the quick-note box; if that is open
    /// already, closes it instead.
    void capture(Target target);
    /// Adds the selection as checkboxes to the most recently changed checklist, or to a new one if there is
    /// none. Ignored within 2 seconds of the last capture.
    void addSelectionToChecklist();
    /// Saves the selection as a prompt. Ignored within 2 seconds of the last prompt. Does nothing if nothing
    /// is selected.
    void savePrompt();
    /// Marks a reading as under way for the lifetime of the returned object.
    [[nodiscard]] auto beginReading()
    {
        ++m_readings;
        return qScopeGuard([self = QPointer(this)] {
            if (!self.isNull())
                self->endReading();
        });
    }
    void endReading();
    void holdBack(Command command);
    QCoro::Task<> stopHoldingLater();
    void performHeldBack();
    /// Listens for the double Shift if the user has agreed to it and wants it.
    void followTrust();
    /// Returns whether a command follows the last one too soon. If not, records it as the last one.
    [[nodiscard]] bool isWithinGap(Instant &last) const;

    QCoro::Task<> captureSelection(Target target, Source press);
    QCoro::Task<> addToChecklist(Source press);
    QCoro::Task<> savePromptSelection();
    /// Reads the selection. Its source includes the address of the page.
    QCoro::Task<Reading> readSelection(Source press);

    void keep(const Selection &selection, Target target);
    void keepPrompt(const QString &text);
    void tellTooLong();
    /// Says what became of a text that is in the store.
    void confirm(const noterules::Kept &kept, const QString &message, const QString &symbol);
    void tellNotSaved();
    void openQuickNote(QuickNoteBox::Mode mode, const QString &remark = {});
    void openComposer();

    Needs m_needs;
    DoubleShiftMonitor m_doubleShift;
    /// When the last capture and the last double Shift were accepted; nullopt before the first.
    Instant m_lastCapture;
    Instant m_lastPrompt;
    bool m_hasAskedForAccess = false;
    int m_readings = 0;
    /// Commands that take the focus and were requested during a reading, each only once.
    QList<Command> m_heldBack;
    /// Counts how often commands were held back.
    int m_holds = 0;
};

} // namespace vesk
