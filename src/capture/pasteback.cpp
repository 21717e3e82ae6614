// SPDX-License-Identifier: MIT
#include "capture/pasteback.h"

#include "capture/pasteboardwatcher.h"
#include "platform/application.h"
#include "platform/clock.h"
#include "platform/eventposter.h"
#include "platform/logging.h"
#include "platform/pasteboard.h"
#include "platform/workspace.h"

#include <QCoreApplication>
#include <QPointer>

#include <functional>

namespace vesk {

using namespace std::chrono_literals;

namespace {

constexpr auto kAwayPeriod = 25ms;
constexpr int kAwayWaits = 40;
/// An application that has just come to the front needs a moment before it accepts keys.
constexpr auto kSettling = 60ms;

} // namespace

PasteBack::PasteBack(const Needs &needs)
    : m_needs(needs)
{
}

void PasteBack::pasteIntoPreviousApp(const QString &text)
{
    m_needs.pasteboard.setString(text);
    m_needs.watcher.markOwn();
    m_needs.application.hide();
    pasteWhenAway();
}

QCoro::Task<> PasteBack::pasteWhenAway()
{
    const QPointer<PasteBack> self(this);
    const Needs needs = m_needs;
    const int paste = ++m_paste;
    bool isBack = isAway();
    for (int waits = 0; waits < kAwayWaits && !isBack && !needs.application.isPreviousWindowClosed();
         ++waits) {
        co_await needs.clock.sleep(kAwayPeriod);
        if (self.isNull() || m_paste != paste)
            co_return;
        isBack = isAway();
    }
    co_await needs.clock.sleep(kSettling);
    if (self.isNull() || m_paste != paste)
        co_return;
    const EventPoster::Target target = needs.poster.target();
    using Command = EventPoster::Command;
    const Command command = isBack ? Command::Paste : Command::PasteUnlessTerminal;
    const std::function<bool()> isStillWanted = [self, paste, isBack] {
        return !self.isNull() && self->isWanted(paste, isBack);
    };
    const bool isPosted = co_await needs.poster.post(command, target, isStillWanted);
    qCDebug(captureLog) << "previous window is back:" << isBack << "pasted:" << isPosted;
    if (self.isNull() || isPosted || m_paste != paste)
        co_return;
    const bool isClosed = needs.application.isPreviousWindowClosed();
    Q_EMIT refused(isClosed ? Refusal::WindowClosed : Refusal::NotTaken);
}

bool PasteBack::isWanted(int paste, bool isBack) const
{
    // The user may have returned to Vesk, or left the window that the text was meant for. Pasting into Vesk
    // itself would change a note.
    return m_paste == paste && !m_needs.application.isPreviousWindowClosed()
           && (isBack ? isAway() : !isFrontmost());
}

bool PasteBack::isFrontmost() const
{
    const std::optional<RunningApplication> frontmost = m_needs.workspace.frontmostApplication();
    return frontmost && frontmost->processIdentifier == QCoreApplication::applicationPid();
}

bool PasteBack::isAway() const
{
    return m_needs.application.isAway() && !isFrontmost();
}

} // namespace vesk
