// SPDX-License-Identifier: MIT
#include "services/veskservices.h"

#include "input/globalkeys.h"
#include "notes/notesstore.h"
#include "notes/promptrules.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/accessibility.h"
#include "platform/eventtap.h"
#include "platform/logging.h"
#include "platform/sounds.h"
#include "platform/workspace.h"
#include "quicknote/notice.h"
#include "quicknote/toast.h"

#include <algorithm>
#include <utility>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// A second press within this time is accidental.
constexpr std::chrono::seconds kCommandGap{2};
/// The longest time that a command waits for a reading. A slow application must not keep the user from the
/// notes.
constexpr std::chrono::seconds kLongestHold{1};

const QString kDone = notices::kSaved.symbol.toString();
const QString kTrouble = notices::kNotSaved.symbol.toString();

QString addedTo(const QString &title, const QString &untitled)
{
    return VeskServices::tr("Added to “%1”").arg(title.isEmpty() ? untitled : title);
}

/// Why there is no text although something may be selected in this application; empty if there is nothing to
/// say.
QString remarkOn(SelectionReader::Reading::Lack lack, const QString &application)
{
    using Lack = SelectionReader::Reading::Lack;
    switch (lack) {
    case Lack::NoAnswer:
        return VeskServices::tr("%1 did not answer, so Vesk could not read what is selected there.")
            .arg(application);
    case Lack::NotGiven:
        return VeskServices::tr("%1 did not hand over the selected text.").arg(application);
    case Lack::PasteboardInTheWay:
        return VeskServices::tr("Vesk could not read what is selected in %1 without losing what is on the "
                                "clipboard.")
            .arg(application);
    case Lack::None:
        break;
    }
    return {};
}

} // namespace

VeskServices::VeskServices(const Needs &needs)
    : m_needs(needs)
    , m_doubleShift(needs.tap)
{
}

void VeskServices::start()
{
    connect(&m_needs.keys, &GlobalKeys::pressed, this, &VeskServices::perform);
    connect(&m_needs.keys, &GlobalKeys::changed, this, &VeskServices::followTrust);
    connect(&m_doubleShift, &DoubleShiftMonitor::doubleShift, this, [this] {
        // Shift can be heard even when the screen is locked. Nothing may be read then, and the copy keys
        // would go to the lock screen. Hot keys are not delivered then.
        if (!m_needs.tap.isKeyboardTaken())
            perform(Command::SavePrompt);
    });
    // If another program has grabbed a combination, its command can still be reached in other ways: the panel
    // is opened by starting Vesk again.
    m_needs.keys.start();

    const std::optional<RunningApplication> frontmost = m_needs.workspace.frontmostApplication();
    m_needs.keys.setFrontmost(frontmost ? frontmost->bundleIdentifier : std::nullopt);
    connect(&m_needs.workspace, &Workspace::didActivateApplication, this,
            [this](const RunningApplication &application) {
                m_needs.keys.setFrontmost(application.bundleIdentifier);
            });

    connect(&m_needs.accessibility, &Accessibility::trustChanged, this, &VeskServices::followTrust);
    followTrust();
}

void VeskServices::perform(Command command)
{
    // A Vesk window that takes the focus would take away the selection that is being read.
    if (m_readings > 0 && rowOf(command).takesFocus)
        holdBack(command);
    else
        performNow(command);
}

void VeskServices::performNow(Command command)
{
    qCDebug(servicesLog) << "command" << rowOf(command).method;
    switch (command) {
    case Command::Capture:
        return capture(Target::NewNote);
    case Command::CaptureToLastNote:
        return capture(Target::LastNote);
    case Command::CaptureChecklist:
        return capture(Target::NewChecklist);
    case Command::AddToChecklist:
        return addSelectionToChecklist();
    case Command::SavePrompt:
        return savePrompt();
    case Command::QuickNote:
        return openQuickNote(QuickNoteBox::Mode::Note);
    case Command::QuickChecklist:
        return openQuickNote(QuickNoteBox::Mode::Checklist);
    case Command::Toggle:
        return m_needs.panelWindow.togglePanel();
    case Command::Show:
        return m_needs.panelWindow.showPanel();
    case Command::Write:
        return openComposer();
    case Command::Quit:
        Q_EMIT quitRequested();
        return;
    }
}

void VeskServices::endReading()
{
    if (--m_readings == 0)
        performHeldBack();
}

void VeskServices::holdBack(Command command)
{
    if (m_heldBack.contains(command))
        return;
    qCDebug(servicesLog) << "command" << rowOf(command).method << "waits for the reading under way";
    m_heldBack.append(command);
    if (m_heldBack.size() == 1)
        stopHoldingLater();
}

QCoro::Task<> VeskServices::stopHoldingLater()
{
    const QPointer<VeskServices> self(this);
    const int hold = ++m_holds;
    co_await m_needs.clock.sleep(kLongestHold);
    // This reading may have ended, and another one may be holding commands back.
    if (!self.isNull() && m_holds == hold)
        performHeldBack();
}

void VeskServices::performHeldBack()
{
    for (const Command command : std::exchange(m_heldBack, {}))
        performNow(command);
}

void VeskServices::followTrust()
{
    const bool isTrusted = m_needs.accessibility.isProcessTrusted();
    if (isTrusted && m_needs.keys.isDoubleShiftWanted())
        m_doubleShift.start();
    else
        m_doubleShift.stop();
    m_needs.keys.setShiftHeard(isTrusted);
}

bool VeskServices::isWithinGap(Instant &last) const
{
    // Not the wall clock: setting it back must not block the key.
    const std::chrono::microseconds now = m_needs.clock.monotonic();
    if (last && now - *last < kCommandGap)
        return true;
    last = now;
    return false;
}

void VeskServices::capture(Target target)
{
    // The key that opened the box closes it, however soon.
    if (m_needs.quickNote.isShowing()) {
        m_lastCapture = m_needs.clock.monotonic();
        m_needs.quickNote.close();
        return;
    }
    if (isWithinGap(m_lastCapture))
        return;
    // Before anything else: a user who writes a quick note does not wait for the box.
    if (m_needs.accessibility.isProcessTrusted())
        m_needs.quickNote.expect();
    captureSelection(target, m_needs.reader.readSource());
}

QCoro::Task<> VeskServices::captureSelection(Target target, Source press)
{
    const QPointer<VeskServices> self(this);
    const auto reading = beginReading();
    Reading read;
    if (m_needs.accessibility.isProcessTrusted()) {
        read = co_await readSelection(press);
        if (self.isNull())
            co_return;
    }
    if (read.selection) {
        m_needs.quickNote.expectNothing();
        keep(*read.selection, target);
        co_return;
    }
    openQuickNote(target == Target::NewChecklist ? QuickNoteBox::Mode::Checklist : QuickNoteBox::Mode::Note,
                  read.remark);
    // The question appears above the box. Permission may have been withdrawn while the text was read.
    if (!m_needs.accessibility.isProcessTrusted())
        askForAccessOnce();
}

void VeskServices::addSelectionToChecklist()
{
    if (isWithinGap(m_lastCapture))
        return;
    if (!m_needs.accessibility.isProcessTrusted()) {
        m_needs.toast.show(tr("Vesk needs Accessibility access"), u"hand.raised.fill"_s);
        askForAccessOnce();
        return;
    }
    addToChecklist(m_needs.reader.readSource());
}

QCoro::Task<> VeskServices::addToChecklist(Source press)
{
    const QPointer<VeskServices> self(this);
    const auto reading = beginReading();
    const Reading read = co_await readSelection(press);
    if (self.isNull())
        co_return;
    if (read.selection)
        keep(*read.selection, Target::LastChecklist);
    else if (read.remark.isEmpty())
        m_needs.toast.show(tr("Select text to add to your checklist"), u"text.cursor"_s);
    else
        m_needs.toast.show(read.remark, kTrouble);
}

void VeskServices::savePrompt()
{
    if (!isWithinGap(m_lastPrompt))
        savePromptSelection();
}

QCoro::Task<> VeskServices::savePromptSelection()
{
    const QPointer<VeskServices> self(this);
    const auto reading = beginReading();
    const Source press = m_needs.reader.readSource();
    const SelectionReader::Reading read = co_await m_needs.reader.readSelection();
    if (self.isNull())
        co_return;
    // The user may tap Shift twice for no reason, so say nothing if nothing is selected.
    if (read.text)
        keepPrompt(*read.text);
    else if (press && read.lack == SelectionReader::Reading::Lack::PasteboardInTheWay)
        m_needs.toast.show(remarkOn(read.lack, press->source.app), kTrouble);
}

QCoro::Task<VeskServices::Reading> VeskServices::readSelection(Source press)
{
    const QPointer<VeskServices> self(this);
    // Requested first and awaited last, so that both answers are fetched at the same time.
    const auto address = m_needs.reader.readPageAddress(press ? press->processIdentifier : 0);
    const SelectionReader::Reading read = co_await m_needs.reader.readSelection();
    if (self.isNull())
        co_return Reading();
    if (!read.text)
        co_return Reading{.remark = press ? remarkOn(read.lack, press->source.app) : QString()};
    Selection selection{.text = *read.text, .source = std::nullopt};
    if (press) {
        selection.source = press->source;
        selection.source->url = co_await address;
    }
    co_return Reading{.selection = selection};
}

void VeskServices::keep(const Selection &selection, Target target)
{
    using Outcome = noterules::Outcome;
    const bool isChecklist = target == Target::LastChecklist;
    const noterules::Kept kept =
        noterules::keepSelection(m_needs.store, m_needs.clock, selection.text, selection.source, target);
    switch (kept.outcome) {
    case Outcome::Added:
        return confirm(kept, notices::kSaved.text(), kDone);
    case Outcome::Appended:
        return confirm(kept, addedTo(kept.appendedTo, isChecklist ? tr("Checklist") : tr("New Note")),
                       isChecklist ? u"checklist"_s : u"text.append"_s);
    case Outcome::AlreadyThere:
        return confirm(kept, tr("Already in Vesk"), kDone);
    case Outcome::TooLong:
        return tellTooLong();
    case Outcome::Empty:
        return;
    }
}

void VeskServices::keepPrompt(const QString &text)
{
    using Outcome = promptrules::Outcome;
    const promptrules::Kept kept = promptrules::keepSelection(m_needs.store, m_needs.clock, text);
    if (kept.outcome == Outcome::Added)
        confirm(kept, tr("Saved to Prompts"), kDone);
    else if (kept.outcome == Outcome::AlreadyThere)
        m_needs.toast.show(tr("Already in Prompts"), kDone);
    else if (kept.outcome == Outcome::TooLong)
        tellTooLong();
}

void VeskServices::tellTooLong()
{
    m_needs.toast.show(tr("The selection is too long to keep"), kTrouble);
}

void VeskServices::confirm(const noterules::Kept &kept, const QString &message, const QString &symbol)
{
    if (!kept.problem.isEmpty())
        return tellNotSaved();
    m_needs.toast.show(message, symbol);
    m_needs.sounds.play(Sounds::Sound::Tink);
}

void VeskServices::tellNotSaved()
{
    // The store keeps the change and writes it when the disk allows.
    m_needs.toast.show(notices::kNotSaved);
}

void VeskServices::openQuickNote(QuickNoteBox::Mode mode, const QString &remark)
{
    m_needs.quickNote.show(mode, remark);
}

void VeskServices::openComposer()
{
    m_needs.panelWindow.showPanel();
    m_needs.panel.requestField(PanelModel::Field::Composer);
}

void VeskServices::askForAccessOnce()
{
    if (m_hasAskedForAccess)
        return;
    m_hasAskedForAccess = true;
    m_needs.accessibility.askForTrust();
}

} // namespace vesk
