// SPDX-License-Identifier: MIT
#include "platform/memory/memorypasteboard.h"

namespace vesk {

const QString MemoryPasteboard::kTextType = QStringLiteral("text/plain;charset=utf-8");

QCoro::Task<QList<PasteboardItem>> MemoryPasteboard::pasteboardItems()
{
    if (m_isSecret)
        co_return QList<PasteboardItem>();
    // QCoro 0.8 moves out of what is returned by name, members too, unless it is const.
    const QList<PasteboardItem> items = m_items;
    if (m_clock)
        co_await m_clock->sleep(m_delay);
    co_return items;
}

QCoro::Task<std::optional<QString>> MemoryPasteboard::string(Patience /*patience*/)
{
    // Also if it changes meanwhile.
    const QList<PasteboardItem> items = m_isSecret ? QList<PasteboardItem>() : m_items;
    if (m_clock)
        co_await m_clock->sleep(m_delay);
    for (const PasteboardItem &item : items) {
        for (const PasteboardData &representation : item) {
            if (representation.type == kTextType)
                co_return QString::fromUtf8(representation.data);
        }
    }
    co_return std::nullopt;
}

void MemoryPasteboard::clearContents()
{
    writeObjects({});
}

void MemoryPasteboard::setString(const QString &text)
{
    const PasteboardData representation{.type = kTextType, .data = text.toUtf8()};
    writeObjects({PasteboardItem{representation}});
}

void MemoryPasteboard::writeObjects(const QList<PasteboardItem> &items)
{
    m_items = items;
    ++m_changeCount;
    if (m_reportsChanges)
        Q_EMIT changed();
}

} // namespace vesk
