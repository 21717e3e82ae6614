// SPDX-License-Identifier: MIT
#include "commands/veskservices.h"

#include "input/hotkeytable.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/accessibility.h"
#include "platform/sounds.h"
#include "quicknote/toast.h"

#include <QPointer>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// A second press within this time is a slip of the finger.
constexpr std::chrono::seconds kCommandGap{2};

const QString kDone = u"checkmark.circle.fill"_s;
const QString kTrouble = u"exclamationmark.triangle.fill"_s;

bool isTooLong(const QString &text)
{
    // Three bytes is the most that one unit takes, so most texts need not be converted.
    return text.size() > kMaximumTextBytes / 3 && text.toUtf8().size() > kMaximumTextBytes;
}

} // namespace

VeskServices::VeskServices(const Needs &needs)
    : m_needs(needs)
    , m_quickNote(hotkeytable::kQuickNote.id, needs.hotKeys)
    , m_append(hotkeytable::kAppend.id, needs.hotKeys)
    , m_open(hotkeytable::kOpen.id, needs.hotKeys)
    , m_write(hotkeytable::kWrite.id, needs.hotKeys)
{
}

void VeskServices::start()
{
    connect(&m_quickNote, &GlobalHotKey::pressed, this, [this] { capture(Target::NewNote); });
    connect(&m_append, &GlobalHotKey::pressed, this, [this] { capture(Target::LastNote); });
    connect(&m_open, &GlobalHotKey::pressed, this, [this] { m_needs.panelWindow.togglePanel(); });
    connect(&m_write, &GlobalHotKey::pressed, this, &VeskServices::openComposer);
    // A combination that another program has leaves its command to the others' ways: the panel can be
    // opened by starting Vesk again.
    m_quickNote.registerKey(hotkeytable::kQuickNote.combination);
    m_append.registerKey(hotkeytable::kAppend.combination);
    m_open.registerKey(hotkeytable::kOpen.combination);
    m_write.registerKey(hotkeytable::kWrite.combination);
}

void VeskServices::capture(Target target)
{
    const Date now = m_needs.clock.now();
    // A clock that was set back must not lock the key, so only a time after the last capture counts.
    if (m_lastCapture && now >= *m_lastCapture && now - *m_lastCapture < kCommandGap)
        return;
    m_lastCapture = now;
    captureSelection(target, m_needs.reader.readSource());
}

QCoro::Task<> VeskServices::captureSelection(Target target,
                                             std::optional<SelectionReader::SourceAtPress> press)
{
    if (!m_needs.accessibility.isProcessTrusted()) {
        openComposer();
        askForAccessOnce();
        co_return;
    }
    const QPointer<VeskServices> self(this);
    // Asked for first and waited for last, so that the two answers come side by side.
    const auto address = m_needs.reader.readPageAddress(press ? press->processIdentifier : 0);
    const std::optional<QString> text = co_await m_needs.reader.readSelection();
    if (self.isNull())
        co_return;
    if (!text) {
        openComposer();
        co_return;
    }
    std::optional<CaptureSource> source;
    if (press) {
        source = press->source;
        source->url = co_await address;
        if (self.isNull())
            co_return;
    }
    keep(*text, target, source);
}

void VeskServices::keep(const QString &text, Target target, const std::optional<CaptureSource> &source)
{
    if (isTooLong(text)) {
        m_needs.toast.show(u"The selection is too long to keep"_s, kTrouble);
        return;
    }
    Note *newest = m_needs.store.notes().first();
    if (target == Target::LastNote && newest) {
        const QString title = newest->title();
        newest->append(text);
        saveAndConfirm(u"Added to “%1”"_s.arg(title.isEmpty() ? u"New Note"_s : title), u"text.append"_s);
        return;
    }
    if (target == Target::NewNote && newest && newest->text() == text) {
        saveAndConfirm(u"Already in Vesk"_s, kDone);
        return;
    }
    m_needs.store.insert(std::make_unique<Note>(m_needs.clock, text, source));
    saveAndConfirm(u"Saved to Vesk"_s, kDone);
}

void VeskServices::saveAndConfirm(const QString &message, const QString &symbol)
{
    if (!m_needs.store.save()) {
        // The store holds on to the change and writes it when the disk lets it.
        m_needs.toast.show(u"Not saved yet, Vesk keeps trying"_s, kTrouble);
        return;
    }
    m_needs.toast.show(message, symbol);
    m_needs.sounds.play(Sounds::Sound::Tink);
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
