// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QQuickItem;

namespace vesk {

/// A range of a text item's text that keeps covering the same characters when the text around it changes. If
/// its content is replaced, it becomes empty at that position. In UTF-16 units.
class TrackedSpan final : public QObject
{
    Q_OBJECT

public:
    /// The item must outlive this object.
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
