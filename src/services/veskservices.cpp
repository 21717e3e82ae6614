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

bool isTooLong(const QString &text)
{
    // A UTF-16 unit takes at most three bytes, so most texts need not be converted.
    return text.size() > kMaximumTextBytes / 3 && text.toUtf8().size() > kMaximumTextBytes;
}

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

/// The most recently changed note that has checkboxes; null if there is none.
Note *findLastChecklist(NotesStore &store)
{
    for (qsizetype i = 0; i < store.notes().count(); ++i) {
        if (store.notes().at(i).progress())
            return &store.notes().at(i);
    }
    return nullptr;
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
        keepInChecklist(*read.selection);
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
    if (refuseTooLong(selection.text))
        return;
    const bool isChecklist = target == Target::NewChecklist;
    const QString text = isChecklist ? markup::checklist(selection.text) : selection.text;
    Note *newest = m_needs.store.notes().first();
    if (newest && target == Target::LastNote) {
        const QString title = newest->title();
        newest->append(text);
        saveAndConfirm(addedTo(title, tr("New Note")), u"text.append"_s);
        return;
    }
    // Stored texts are well formed, so compare the new text in the form in which it would be stored.
    if (newest && newest->text() == markup::wellFormed(text)) {
        saveAndConfirm(tr("Already in Vesk"), kDone);
        return;
    }
    insertNote(text, selection.source);
}

void VeskServices::keepInChecklist(const Selection &selection)
{
    if (refuseTooLong(selection.text))
        return;
    Note *checklist = findLastChecklist(m_needs.store);
    if (!checklist) {
        insertNote(markup::checklist(selection.text), selection.source);
        return;
    }
    const QString title = checklist->title();
    checklist->addChecklistItems(selection.text);
    saveAndConfirm(addedTo(title, tr("Checklist")), u"checklist"_s);
}

void VeskServices::keepPrompt(const QString &text)
{
    if (refuseTooLong(text))
        return;
    switch (promptrules::saveFromSelection(m_needs.store, m_needs.clock, text)) {
    case promptrules::SaveOutcome::Saved:
        confirm(tr("Saved to Prompts"), kDone);
        break;
    case promptrules::SaveOutcome::Pending:
        tellNotSaved();
        break;
    case promptrules::SaveOutcome::AlreadyThere:
        m_needs.toast.show(tr("Already in Prompts"), kDone);
        break;
    }
}

void VeskServices::insertNote(const QString &text, const std::optional<CaptureSource> &source)
{
    m_needs.store.insert(std::make_unique<Note>(m_needs.clock, text, source));
    saveAndConfirm(notices::kSaved.text(), kDone);
}

bool VeskServices::refuseTooLong(const QString &text)
{
    if (!isTooLong(text))
        return false;
    m_needs.toast.show(tr("The selection is too long to keep"), kTrouble);
    return true;
}

void VeskServices::saveAndConfirm(const QString &message, const QString &symbol)
{
    if (m_needs.store.save())
        confirm(message, symbol);
    else
        tellNotSaved();
}

void VeskServices::confirm(const QString &message, const QString &symbol)
{
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
