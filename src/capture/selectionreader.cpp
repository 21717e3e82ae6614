// SPDX-License-Identifier: MIT
#include "capture/selectionreader.h"

#include "notes/markup.h"
#include "platform/accessibility.h"
#include "platform/workspace.h"

#include <QCoreApplication>

namespace vesk {

SelectionReader::SelectionReader(Accessibility &accessibility, Workspace &workspace)
    : m_accessibility(accessibility)
    , m_workspace(workspace)
{
}

std::optional<CaptureSource> SelectionReader::readSource() const
{
    const std::optional<RunningApplication> frontmost = m_workspace.frontmostApplication();
    if (!frontmost || frontmost->processIdentifier == QCoreApplication::applicationPid()
        || frontmost->localizedName.isEmpty())
        return std::nullopt;
    CaptureSource source{.app = frontmost->localizedName,
                         .bundleID = frontmost->bundleIdentifier,
                         .title = std::nullopt,
                         .url = std::nullopt};
    if (!m_accessibility.isProcessTrusted())
        return source;
    const std::optional<QString> title = m_accessibility.focusedWindowTitle(frontmost->processIdentifier);
    if (title) {
        const QString trimmed = markup::trimmed(*title);
        if (!trimmed.isEmpty() && trimmed != source.app)
            source.title = trimmed;
    }
    return source;
}

QCoro::Task<std::optional<QString>> SelectionReader::readSelection()
{
    co_return co_await selectedTextViaAccessibility();
}

QCoro::Task<std::optional<QString>> SelectionReader::selectedTextViaAccessibility()
{
    const std::optional<AccessibleElement> focused = co_await m_accessibility.copyElement(
        Accessibility::systemWideElement(), Accessibility::ElementAttribute::FocusedElement);
    if (!focused)
        co_return std::nullopt;
    const std::optional<QString> selected =
        co_await m_accessibility.copyString(*focused, Accessibility::StringAttribute::SelectedText);
    if (!selected)
        co_return std::nullopt;
    const QString text = markup::trimmed(*selected);
    if (text.isEmpty())
        co_return std::nullopt;
    co_return text;
}

} // namespace vesk
