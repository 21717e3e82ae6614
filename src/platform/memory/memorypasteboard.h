// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/pasteboard.h"

#include <chrono>

namespace vesk {

/// A pasteboard for a test.
class MemoryPasteboard final : public Pasteboard
{
    Q_OBJECT

public:
    /// The type that `setString` and `string` use for text.
    static const QString kTextType;

    [[nodiscard]] qint64 changeCount() const override { return m_changeCount; }
    [[nodiscard]] bool hasContents() const override { return !m_items.isEmpty(); }
    [[nodiscard]] Origin origin() const override { return m_origin; }
    QCoro::Task<QList<PasteboardItem>> pasteboardItems() override;
    using Pasteboard::string;
    QCoro::Task<std::optional<QString>> string(Patience patience) override;
    void clearContents() override;
    void setString(const QString &text) override;
    void writeObjects(const QList<PasteboardItem> &items) override;
    [[nodiscard]] bool reportsChanges() const override { return m_reportsChanges; }

    /// Sets whether the platform reports changes.
    void setReportsChanges(bool reportsChanges) { m_reportsChanges = reportsChanges; }
    /// Makes reading take this long. It returns the content from when it started.
    void setDelay(Clock &clock, std::chrono::milliseconds delay)
    {
        m_clock = &clock;
        m_delay = delay;
    }
    /// Sets the origin of the following changes; unknown at first.
    void setOrigin(const Origin &origin) { m_origin = origin; }
    /// Makes the content unreadable, as if it were marked as secret or too large.
    void setSecret(bool isSecret) { m_isSecret = isSecret; }
    /// The current content, without waiting.
    [[nodiscard]] const QList<PasteboardItem> &items() const { return m_items; }

private:
    qint64 m_changeCount = 0;
    bool m_reportsChanges = true;
    bool m_isSecret = false;
    Clock *m_clock = nullptr;
    std::chrono::milliseconds m_delay{0};
    Origin m_origin;
    QList<PasteboardItem> m_items;
};

} // namespace vesk
