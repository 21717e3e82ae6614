// SPDX-License-Identifier: MIT
#include "platform/x11/emacsselection.h"

#include "platform/x11/xreply.h"

#include <QCoroTimer>

#include <QPointer>

namespace vesk {

using namespace std::chrono_literals;

namespace {

/// How long a comparison may take, and how often to check.
constexpr auto kComparison = 500ms;
constexpr auto kLook = 10ms;
/// By then Emacs has claimed PRIMARY if the press leaves a region; in server milliseconds.
constexpr unsigned int kClaimed = 150;

} // namespace

EmacsSelection::EmacsSelection(PrimarySelection &primary)
    : m_primary(primary)
{
}

void EmacsSelection::addPress(xcb_timestamp_t time)
{
    m_pressBefore = m_press;
    m_press = {.time = time};
    if (m_pressBefore.claims == 0 && m_pressBefore.unclaimedSince != 0)
        m_press.unclaimedSince = m_pressBefore.unclaimedSince;
    else if (m_pressBefore.claims == 0)
        m_press.unclaimedSince = m_pressBefore.time;
}

void EmacsSelection::removePress()
{
    m_pressBefore.claims += m_press.claims;
    m_press = m_pressBefore;
    m_pressBefore = {};
}

QCoro::Task<> EmacsSelection::addClaim()
{
    ++m_press.claims;
    const QPointer<EmacsSelection> self(this);
    const quint64 number = m_primary.claim().number;
    const std::optional<size_t> fingerprint = co_await m_primary.fingerprint();
    if (self.isNull())
        co_return;
    if (!fingerprint) {
        // PRIMARY has been claimed again already, or Emacs is busy. The next claim cannot be compared with
        // this one.
        m_isLastMissed = true;
        co_return;
    }
    const bool isOther = !m_isLastMissed && fingerprint != m_fingerprint;
    m_hasRegion = isOther || !isFromDeselecting();
    m_fingerprint = fingerprint;
    m_isLastMissed = false;
    m_compared = number;
}

void EmacsSelection::clear()
{
    m_press = {};
    m_pressBefore = {};
    m_compared.reset();
    m_fingerprint.reset();
    m_isLastMissed = false;
}

QCoro::Task<bool> EmacsSelection::hasRegion()
{
    const QPointer<EmacsSelection> self(this);
    const quint64 number = m_primary.claim().number;
    for (auto waited = 0ms; waited < kComparison && m_compared != number; waited += kLook) {
        co_await QCoro::sleepFor(kLook);
        if (self.isNull())
            co_return false;
    }
    if (m_compared != number || m_primary.claim().number != number)
        co_return false;
    // Some commands, such as Control-G, end the region without a claim.
    const bool isLatest = m_press.time == 0 || isAtOrAfter(m_primary.claim().time, m_press.time);
    co_return (isLatest && m_hasRegion);
}

bool EmacsSelection::isFromDeselecting() const
{
    // A new region may have the same text as the previous one. But the mouse makes several claims with one
    // press, and a command that had left no region made none.
    if (m_press.claims > 1)
        return false;
    const bool wasGone =
        m_press.unclaimedSince != 0 && isAtOrAfter(m_press.time, m_press.unclaimedSince + kClaimed);
    return !wasGone;
}

} // namespace vesk
