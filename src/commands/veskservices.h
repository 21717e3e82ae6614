// SPDX-License-Identifier: MIT
#pragma once

#include "capture/selectionreader.h"
#include "input/globalhotkey.h"
#include "notes/capturesource.h"
#include "platform/clock.h"

#include <QCoroTask>

#include <QObject>

#include <optional>

namespace vesk {

class Accessibility;
class NotesStore;
class PanelModel;
class PanelWindow;
class Sounds;
class Toast;

/// Turns global key presses into stored notes. Owned by the application, one for the program.
class VeskServices final : public QObject
{
    Q_OBJECT

public:
    /// What the hub works with; all of it outlives the hub.
    struct Needs
    {
        Clock &clock;
        HotKeys &hotKeys;
        Accessibility &accessibility;
        Sounds &sounds;
        NotesStore &store;
        SelectionReader &reader;
        PanelModel &panel;
        PanelWindow &panelWindow;
        Toast &toast;
    };

    /// Where captured text goes.
    enum class Target {
        NewNote,
        /// The note changed last, or a new one if there is none.
        LastNote,
    };

    explicit VeskServices(const Needs &needs);

    /// Registers the hot keys. To be called once. A combination that is taken does nothing.
    void start();

    /// Keeps what is selected in the frontmost application. Ignored within 2 seconds of the last
    /// capture. With nothing selected the panel opens to write a note.
    void capture(Target target);

private:
    QCoro::Task<> captureSelection(Target target, std::optional<SelectionReader::SourceAtPress> press);
    void keep(const QString &text, Target target, const std::optional<CaptureSource> &source);
    /// Saves, then tells the user; in this order, so that what is said to be saved is.
    void saveAndConfirm(const QString &message, const QString &symbol);
    void openComposer();
    void askForAccessOnce();

    Needs m_needs;
    GlobalHotKey m_quickNote;
    GlobalHotKey m_append;
    GlobalHotKey m_open;
    GlobalHotKey m_write;
    /// When the last capture was accepted; none before the first.
    std::optional<Date> m_lastCapture;
    bool m_hasAskedForAccess = false;
};

} // namespace vesk
