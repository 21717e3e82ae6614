// SPDX-License-Identifier: MIT
#pragma once

#include "components/menuentry.h"

#include <QPointer>
#include <QQmlListProperty>
#include <QQuickWindow>

class QKeyEvent;

namespace vesk {

/// What a menu does: which of its entries is the current one, and every key while it is open. No key
/// reaches the window below before it has closed.
class MenuControl : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQmlListProperty<vesk::MenuEntry> entries READ entries CONSTANT)
    /// Index of the entry that Return would choose; -1 for none.
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    using QObject::QObject;

    /// Opens in the window of `item`. Nothing if it is open already, or the item is in no window.
    Q_INVOKABLE void open(QQuickItem *item);
    Q_INVOKABLE void close();
    /// Closes, gives the keyboard back and then triggers the entry. Nothing if it cannot be chosen.
    Q_INVOKABLE void choose(int index);

    /// Makes the first entry that can be chosen the current one, as for a menu that a key has opened.
    Q_INVOKABLE void selectFirst();

    [[nodiscard]] QQmlListProperty<MenuEntry> entries() { return {this, &m_entries}; }
    [[nodiscard]] int current() const { return m_current; }
    /// An entry that cannot be chosen does not become the current one; none does then.
    void setCurrent(int index);
    [[nodiscard]] bool isOpen() const { return !m_window.isNull(); }

Q_SIGNALS:
    void currentChanged();
    void isOpenChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void handleKey(const QKeyEvent &event);
    /// The next entry from `start` on in steps of `step` that can be chosen, around the end; else -1.
    [[nodiscard]] int findChoosable(int start, int step) const;
    /// The next entry after the current one whose text begins so; the current one if none does.
    [[nodiscard]] int findByLetter(const QString &letter) const;

    QList<MenuEntry *> m_entries;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_formerFocus;
    int m_current = -1;
};

} // namespace vesk
