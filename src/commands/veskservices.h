// SPDX-License-Identifier: MIT
#pragma once

#include "capture/selectionreader.h"
#include "input/doubleshiftmonitor.h"
#include "input/hotkeytable.h"
#include "notes/capturesource.h"
#include "platform/clock.h"
#include "quicknote/quicknotebox.h"

#include <QCoroTask>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QScopeGuard>

#include <chrono>
#include <optional>
#include <span>

namespace vesk {

class Accessibility;
class GlobalKeys;
class NotesStore;
class PanelModel;
class PanelWindow;
class Sounds;
class Toast;

/// Turns global key presses into stored notes and prompts. Owned by the application, one for the
/// program.
class VeskServices final : public QObject
{
    Q_OBJECT

public:
    /// What the hub works with; all of it outlives the hub.
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
        /// Identifiers of applications that keep the checklist's combination for themselves.
        std::span<const QStringView> checklistKeyOwners = hotkeytable::kChecklistKeyOwners;
    };

    /// Where captured text goes.
    enum class Target {
        NewNote,
        /// The note changed last, or a new one if there is none.
        LastNote,
        /// A new note with a checkbox for each line.
        NewChecklist,
    };

    explicit VeskServices(const Needs &needs);

    /// Registers the hot keys, and listens for the double Shift while the user lets it. To be called
    /// once. A combination that is taken does nothing.
    void start();

    /// Keeps what is selected in the frontmost application. Ignored within 2 seconds of the last
    /// capture. With nothing selected, or without the user's trust, the quick-note box opens; while it
    /// is open, it is closed instead.
    void capture(Target target);

    /// Adds what is selected as checkboxes to the checklist changed last, or makes it one if there is
    /// none. Ignored within 2 seconds of the last capture.
    void addSelectionToChecklist();

    /// Keeps what is selected as a prompt. Ignored within 2 seconds of the last prompt; does nothing
    /// if nothing is selected.
    void savePrompt();

    /// Gives the checklist's combination up while its owner is frontmost, and takes it again after.
    void updateChecklistKey(const std::optional<QString> &frontmostBundleID);

    /// Asks the user for trust; once in a run.
    void askForAccessOnce();

private:
    using Source = std::optional<SelectionReader::SourceAtPress>;
    using Instant = std::optional<std::chrono::microseconds>;
    struct Selection
    {
        QString text;
        std::optional<CaptureSource> source;
    };
    /// What came of asking for the selection.
    struct Reading
    {
        /// Nullopt if there is none.
        std::optional<Selection> selection = {};
        /// For the user: why there is none although something may be selected. Empty for no such reason.
        QString remark = {};
    };

    void perform(quint32 id);
    void performNow(quint32 id);
    /// Marks a reading as under way for as long as what is returned lives.
    [[nodiscard]] auto beginReading()
    {
        ++m_readings;
        return qScopeGuard([self = QPointer(this)] {
            if (!self.isNull())
                self->endReading();
        });
    }
    void endReading();
    void holdBack(quint32 id);
    QCoro::Task<> stopHoldingLater();
    void performHeldBack();
    /// Listens for the double Shift as far as the user lets it and wants it.
    void followTrust();
    /// Whether a command follows the last one too soon; if not, it is the last one from now on.
    [[nodiscard]] bool isWithinGap(Instant &last) const;

    QCoro::Task<> captureSelection(Target target, Source press);
    QCoro::Task<> addToChecklist(Source press);
    QCoro::Task<> savePromptSelection();
    /// What is selected, with the page's address in its source.
    QCoro::Task<Reading> readSelection(Source press);

    void keep(const Selection &selection, Target target);
    void keepInChecklist(const Selection &selection);
    void keepPrompt(const QString &text);
    void insertNote(const QString &text, const std::optional<CaptureSource> &source);
    /// Says so if a text is longer than Vesk takes.
    [[nodiscard]] bool refuseTooLong(const QString &text);
    /// Saves, then tells the user; in this order, so that what is said to be saved is.
    void saveAndConfirm(const QString &message, const QString &symbol);
    void confirm(const QString &message, const QString &symbol);
    void tellNotSaved();
    void openQuickNote(Target target, const QString &remark);
    void openComposer();

    Needs m_needs;
    DoubleShiftMonitor m_doubleShift;
    /// When the last capture, and the last double Shift, were accepted; none before the first.
    Instant m_lastCapture;
    Instant m_lastPrompt;
    bool m_hasAskedForAccess = false;
    int m_readings = 0;
    /// The keys of the panel that were pressed during a reading, each once.
    QList<quint32> m_heldBack;
    /// Counts the times that keys were held back.
    int m_holds = 0;
};

} // namespace vesk
