// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>
#include <vector>

class QEvent;

namespace vesk {

/// Holds back what the user types into a text item while something requested earlier is still on its way
/// there, so that both arrive in the order in which they were requested. Owned by the code that waits, and
/// only for the duration of the wait.
class HeldInput final : public QObject
{
    Q_OBJECT

public:
    explicit HeldInput(QQuickItem &item);
    /// Sends on what was held back: through the window if the item still has the focus, otherwise to the item
    /// itself. If the item is gone, its input is dropped.
    ~HeldInput() override;

    /// Drops the held keys that would paste again. Use this when there was no answer: the user would have to
    /// wait again for each of them.
    void dropPastes();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isMeantForItem(const QObject *watched, const QEvent &event) const;

    QPointer<QQuickItem> m_item;
    std::vector<std::unique_ptr<QEvent>> m_events;
};

} // namespace vesk
