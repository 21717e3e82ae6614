// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QQuickItem;

namespace vesk {

/// A stretch of a text item's text that stays where it is when the text around it changes. If what it
/// covers is replaced, it becomes empty at that place. In UTF-16 units.
class TrackedSpan final : public QObject
{
    Q_OBJECT

public:
    /// The item must outlive this.
    TrackedSpan(QQuickItem &item, qsizetype start, qsizetype end);

    [[nodiscard]] qsizetype start() const { return m_start; }
    [[nodiscard]] qsizetype end() const { return m_end; }

private Q_SLOTS:
    void follow();

private:
    QQuickItem &m_item;
    QString m_text;
    qsizetype m_start;
    qsizetype m_end;
};

} // namespace vesk
