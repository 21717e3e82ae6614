// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include <memory>
#include <vector>

class QEvent;

namespace vesk {

/// Holds back what the user types into a text item while something that was asked for before is still
/// on its way there, so that both arrive in the order in which they were asked for. Owned by whoever
/// waits, and only for as long as the wait.
class HeldInput final : public QObject
{
    Q_OBJECT

public:
    explicit HeldInput(QQuickItem &item);
    /// Sends on what was held back: through the window while the item still has the keyboard, otherwise
    /// to the item itself. If the item is gone, so is what was typed into it.
    ~HeldInput() override;

    /// Drops the keys among those held back that would paste again. For when there was no answer: the user
    /// would wait once more for each of them.
    void dropPastes();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isMeantForItem(const QObject *watched, const QEvent &event) const;

    QPointer<QQuickItem> m_item;
    std::vector<std::unique_ptr<QEvent>> m_events;
};

} // namespace vesk
