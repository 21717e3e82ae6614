// SPDX-License-Identifier: MIT
#include "capture/selectionreader.h"

#include "capture/pageaddress.h"
#include "notes/markup.h"
#include "platform/accessibility.h"
#include "platform/logging.h"
#include "platform/workspace.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// A text copied longer ago than this was not meant for the current command.
constexpr std::chrono::seconds kRecentCopyAge{8};

/// The text trimmed of white space; nullopt if nothing is left.
std::optional<QString> nonBlank(const std::optional<QString> &text)
{
    const QString trimmed = text ? markup::trimmed(*text) : QString();
    return trimmed.isEmpty() ? std::nullopt : std::optional(trimmed);
}

/// Whether the text is a single line that ends in a line break.
bool isWholeLine(const QString &text)
{
    const qsizetype end = text.endsWith("\r\n"_L1) ? text.size() - 2 : text.size() - 1;
    const auto isBreak = [](QChar unit) {
        return unit == u'\n' || unit == u'\r' || unit == QChar::ParagraphSeparator
               || unit == QChar::LineSeparator;
    };
    return end >= 0 && isBreak(text.back()) && std::none_of(text.cbegin(), text.cbegin() + end, isBreak);
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

QCoro::Task<SelectionReader::Reading> SelectionReader::readSelection()
{
    const QPointer<SelectionReader> self(this);
    const EventPoster::Target target = m_needs.poster.target();
    m_wasPasteboardInTheWay = false;
    const SelectedText selected = co_await m_needs.accessibility.selectedText();
    // The user may have withdrawn permission meanwhile.
    if (self.isNull() || !m_needs.accessibility.isProcessTrusted())
        co_return Reading();
    std::optional<QString> text = co_await readSelected(target, selected);
    const bool isSelected = text.has_value();
    if (!text && !self.isNull())
        text = co_await m_needs.watcher.recentCopy(kRecentCopyAge);
    qCDebug(captureLog) << "selection read:" << isSelected << "recent copy:" << (text && !isSelected);
    if (text)
        co_return Reading{.text = text};
    if (!self.isNull() && m_wasPasteboardInTheWay)
        co_return Reading{.lack = Reading::Lack::PasteboardInTheWay};
    if (selected.isSilent)
        co_return Reading{.lack = Reading::Lack::NoAnswer};
    co_return Reading{.lack = selected.isClaimed ? Reading::Lack::NotGiven : Reading::Lack::None};
}

QCoro::Task<std::optional<QString>> SelectionReader::readSelected(EventPoster::Target target,
                                                                  SelectedText selected)
{
    const QPointer<SelectionReader> self(this);
    const std::optional<RunningApplication> frontmost = m_needs.workspace.frontmostApplication();
    const std::optional<QString> text = nonBlank(selected.text);
    if (text) {
        const qint64 process = frontmost ? frontmost->processIdentifier : 0;
        const std::optional<QString> address =
            co_await wholeAddress(&m_needs.accessibility, &m_needs.clock, process, *text);
        co_return address ? address : text;
    }
    // Do not make an application copy if it reports that nothing is selected: it might copy the caret's line.
    if (selected.finding == SelectedText::Finding::Nothing)
        co_return std::nullopt;
    const std::optional<QString> copied = co_await m_copy.copySelection(target);
    if (!self.isNull())
        m_wasPasteboardInTheWay = m_copy.wasPasteboardInTheWay();
    // Some editors copy the caret's line when nothing is selected.
    if (!copied || (isWholeLine(*copied) && !selected.isClaimed))
        co_return std::nullopt;
    co_return nonBlank(copied);
}

} // namespace vesk
