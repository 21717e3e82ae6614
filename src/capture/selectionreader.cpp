// SPDX-License-Identifier: MIT
#include "capture/selectionreader.h"

#include "capture/pageaddress.h"
#include "notes/markup.h"
#include "platform/accessibility.h"
#include "platform/workspace.h"

#include <QCoreApplication>
#include <QPointer>

namespace vesk {

namespace {

/// A text copied longer ago than this was not meant for the command of now.
constexpr std::chrono::seconds kRecentCopyAge{8};

/// The text without white space at its ends; none if that leaves nothing.
std::optional<QString> nonBlank(const std::optional<QString> &text)
{
    const QString trimmed = text ? markup::trimmed(*text) : QString();
    return trimmed.isEmpty() ? std::nullopt : std::optional(trimmed);
}

} // namespace

SelectionReader::SelectionReader(const Needs &needs)
    : m_needs(needs)
    , m_copy({.clock = needs.clock,
              .workspace = needs.workspace,
              .pasteboard = needs.pasteboard,
              .watcher = needs.watcher,
              .poster = needs.poster,
              .tap = needs.tap})
{
}

std::optional<SelectionReader::SourceAtPress> SelectionReader::readSource() const
{
    const std::optional<RunningApplication> frontmost = m_needs.workspace.frontmostApplication();
    if (!frontmost || frontmost->processIdentifier == QCoreApplication::applicationPid()
        || frontmost->localizedName.isEmpty())
        return std::nullopt;
    SourceAtPress press{.source = {.app = frontmost->localizedName,
                                   .bundleID = frontmost->bundleIdentifier,
                                   .title = std::nullopt,
                                   .url = std::nullopt},
                        .processIdentifier = frontmost->processIdentifier};
    if (!m_needs.accessibility.isProcessTrusted())
        return press;
    const std::optional<QString> title =
        m_needs.accessibility.focusedWindowTitle(frontmost->processIdentifier);
    if (title) {
        const QString trimmed = markup::trimmed(*title);
        if (!trimmed.isEmpty() && trimmed != press.source.app)
            press.source.title = trimmed;
    }
    return press;
}

QCoro::Task<std::optional<QString>> SelectionReader::readPageAddress(qint64 processIdentifier)
{
    return vesk::readPageAddress(&m_needs.accessibility, &m_needs.clock, processIdentifier);
}

QCoro::Task<std::optional<QString>> SelectionReader::readSelection()
{
    const QPointer<SelectionReader> self(this);
    const EventPoster::Target target = m_needs.poster.target();
    const std::optional<QString> selected = co_await selectedTextViaAccessibility();
    // The user may have withdrawn the trust meanwhile.
    if (self.isNull() || !m_needs.accessibility.isProcessTrusted())
        co_return std::nullopt;
    std::optional<QString> text = nonBlank(selected);
    if (text)
        co_return text;
    // An application that says that nothing is selected is not made to copy: it might copy the line
    // that the caret is in.
    const bool isKnown = selected && selected->isEmpty();
    if (!isKnown) {
        text = co_await m_copy.copySelection(target);
        if (text || self.isNull())
            co_return text;
    }
    co_return co_await m_needs.watcher.recentCopy(kRecentCopyAge);
}

QCoro::Task<std::optional<QString>> SelectionReader::selectedTextViaAccessibility()
{
    Accessibility &accessibility = m_needs.accessibility;
    const std::optional<AccessibleElement> focused = co_await accessibility.copyElement(
        Accessibility::systemWideElement(), Accessibility::ElementAttribute::FocusedElement);
    if (!focused)
        co_return std::nullopt;
    co_return co_await accessibility.copyString(*focused, Accessibility::StringAttribute::SelectedText);
}

} // namespace vesk
