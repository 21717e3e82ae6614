// SPDX-License-Identifier: MIT
#include "platform/memory/memoryaccessibility.h"

namespace vesk {

MemoryAccessibility::MemoryAccessibility(Clock &clock)
    : m_clock(clock)
{
}

std::optional<QString> MemoryAccessibility::focusedWindowTitle(qint64 processIdentifier) const
{
    const auto title = m_titles.constFind(processIdentifier);
    if (!m_isTrusted || title == m_titles.cend())
        return std::nullopt;
    return *title;
}

QCoro::Task<std::optional<AccessibleElement>> MemoryAccessibility::copyElement(AccessibleElement element,
                                                                               ElementAttribute attribute)
{
    if (m_delay.count() > 0)
        co_await m_clock.sleep(m_delay);
    if (!m_isTrusted)
        co_return std::nullopt;
    if (attribute == ElementAttribute::Parent)
        co_return m_elements.value(element.address).parent;
    if (attribute == ElementAttribute::ShownPage)
        co_return std::as_const(m_shownPage);
    const bool isAsked =
        m_focused
        && (element == systemWideElement() || element.processIdentifier == m_focused->processIdentifier);
    if (!isAsked)
        co_return std::nullopt;
    // QCoro 0.8 moves out of what is returned by name, members too, unless it is const.
    co_return std::as_const(m_focused);
}

QCoro::Task<std::optional<QString>> MemoryAccessibility::copyString(AccessibleElement element,
                                                                    StringAttribute attribute)
{
    if (m_delay.count() > 0)
        co_await m_clock.sleep(m_delay);
    const auto found = m_elements.constFind(element.address);
    if (!m_isTrusted || found == m_elements.cend())
        co_return std::nullopt;
    switch (attribute) {
    case StringAttribute::Url:
        co_return found->url;
    case StringAttribute::Role:
        break;
    }
    co_return found->role;
}

QCoro::Task<SelectedText> MemoryAccessibility::selectedText()
{
    if (m_delay.count() > 0)
        co_await m_clock.sleep(m_delay);
    if (!m_isTrusted)
        co_return SelectedText();
    co_return std::as_const(m_selected);
}

void MemoryAccessibility::setTrusted(bool isTrusted)
{
    if (m_isTrusted == isTrusted)
        return;
    m_isTrusted = isTrusted;
    Q_EMIT trustChanged();
}

void MemoryAccessibility::setFocusedWindowTitle(qint64 processIdentifier, const QString &title)
{
    m_titles.insert(processIdentifier, title);
}

void MemoryAccessibility::setElement(const AccessibleElement &name, const Element &element)
{
    m_elements.insert(name.address, element);
}

} // namespace vesk
