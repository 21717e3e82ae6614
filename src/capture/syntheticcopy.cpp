// SPDX-License-Identifier: MIT
#include "capture/syntheticcopy.h"

#include "notes/markup.h"
#include "platform/clock.h"
#include "platform/eventposter.h"
#include "platform/eventtap.h"
#include "platform/workspace.h"

#include <QCoreApplication>
#include <QPointer>

namespace vesk {

using namespace std::chrono_literals;

namespace {

constexpr auto kCopyPeriod = 25ms;
constexpr int kCopyWaits = 20;
/// An application that hung when it was asked to copy does so when it goes on.
constexpr auto kLateCopy = 10s;

} // namespace

SyntheticCopy::SyntheticCopy(const Needs &needs)
    : m_needs(needs)
{
    connect(&needs.watcher, &PasteboardWatcher::changed, this, [this] {
        if (!m_late)
            return;
        const Saved saved = *m_late;
        m_late.reset();
        undoLateCopy(saved);
    });
    // A change after something that the user did may be a copy of the user's own.
    connect(&needs.tap, &EventTap::keyDown, this, [this] { m_late.reset(); });
    connect(&needs.workspace, &Workspace::didActivateApplication, this,
            [this](const RunningApplication &application) {
                // Vesk comes forward by itself where nothing was selected.
                if (application.processIdentifier != QCoreApplication::applicationPid())
                    m_late.reset();
            });
}

QCoro::Task<std::optional<QString>> SyntheticCopy::copySelection()
{
    // Two at once would take each other's copies for the user's.
    if (m_isCopying)
        co_return std::nullopt;
    m_isCopying = true;
    m_late.reset();
    const QPointer<SyntheticCopy> self(this);
    const std::optional<QString> copied = co_await copyAndRestore();
    if (!self.isNull())
        m_isCopying = false;
    const QString text = markup::trimmed(copied.value_or(QString()));
    if (text.isEmpty())
        co_return std::nullopt;
    co_return text;
}

QCoro::Task<std::optional<QString>> SyntheticCopy::copyAndRestore()
{
    const QPointer<SyntheticCopy> self(this);
    Pasteboard &pasteboard = m_needs.pasteboard;
    Saved saved{.items = {}, .standing = m_needs.watcher.standing()};
    const qint64 before = pasteboard.changeCount();
    saved.items = co_await pasteboard.pasteboardItems();
    // Someone copies at this very moment; what is saved is of no use, and that copy is the newest.
    if (self.isNull() || pasteboard.changeCount() != before)
        co_return std::nullopt;
    // A password, or the content of an application that hangs, could not be put back.
    if (saved.items.isEmpty() && pasteboard.hasContents())
        co_return std::nullopt;
    const bool isPosted = co_await m_needs.poster.post(EventPoster::Command::Copy);
    if (self.isNull() || !isPosted)
        co_return std::nullopt;
    for (int waits = 0; waits < kCopyWaits && pasteboard.changeCount() == before; ++waits) {
        co_await m_needs.clock.sleep(kCopyPeriod);
        if (self.isNull())
            co_return std::nullopt;
    }
    if (pasteboard.changeCount() != before)
        co_return co_await takeCopy(saved);
    awaitLateCopy(saved);
    co_return std::nullopt;
}

QCoro::Task<std::optional<QString>> SyntheticCopy::takeCopy(Saved saved)
{
    const QPointer<SyntheticCopy> self(this);
    Pasteboard &pasteboard = m_needs.pasteboard;
    // Some applications (LibreOffice Writer) announce one copy twice, within a moment.
    co_await m_needs.clock.sleep(kCopyPeriod);
    if (self.isNull())
        co_return std::nullopt;
    const qint64 made = pasteboard.changeCount();
    const std::optional<QString> text = co_await pasteboard.string();
    // What the user has copied meanwhile stays.
    if (self.isNull() || pasteboard.changeCount() != made)
        co_return text;
    restore(saved);
    co_return text;
}

void SyntheticCopy::restore(const Saved &saved)
{
    m_needs.pasteboard.writeObjects(saved.items);
    m_needs.watcher.markRestored(saved.standing);
}

void SyntheticCopy::awaitLateCopy(const Saved &saved)
{
    // Where keys are not heard, a late copy cannot be told from the user's own, which must not be
    // undone.
    if (!m_needs.tap.start())
        return;
    m_late = saved;
    stopAwaitingLater();
}

QCoro::Task<> SyntheticCopy::stopAwaitingLater()
{
    const QPointer<SyntheticCopy> self(this);
    const int wait = ++m_lateWait;
    co_await m_needs.clock.sleep(kLateCopy);
    if (!self.isNull() && m_lateWait == wait)
        m_late.reset();
}

QCoro::Task<> SyntheticCopy::undoLateCopy(Saved saved)
{
    const QPointer<SyntheticCopy> self(this);
    // Time for whoever has written to say that it was Vesk, and for a second announcement.
    co_await m_needs.clock.sleep(kCopyPeriod);
    if (self.isNull() || m_isCopying || m_needs.watcher.standing().isOwn)
        co_return;
    restore(saved);
}

} // namespace vesk
