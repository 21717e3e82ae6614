// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pasteboard.h"

namespace vesk {

/// A pasteboard of a test's own.
class MemoryPasteboard final : public Pasteboard
{
    Q_OBJECT

public:
    /// The type under which `setString` and `string` keep text.
    static const QString kTextType;

    [[nodiscard]] qint64 changeCount() const override { return m_changeCount; }
    QCoro::Task<QList<PasteboardItem>> pasteboardItems() override;
    QCoro::Task<std::optional<QString>> string() override;
    void clearContents() override;
    void setString(const QString &text) override;
    void writeObjects(const QList<PasteboardItem> &items) override;
    [[nodiscard]] bool reportsChanges() const override { return m_reportsChanges; }

    /// Plays a platform that does not tell of changes.
    void setReportsChanges(bool reportsChanges) { m_reportsChanges = reportsChanges; }
    /// What is on it now, read at once.
    [[nodiscard]] const QList<PasteboardItem> &items() const { return m_items; }

private:
    qint64 m_changeCount = 0;
    bool m_reportsChanges = true;
    QList<PasteboardItem> m_items;
};

} // namespace vesk
