// SPDX-License-Identifier: MIT
#pragma once

#include "components/menuentry.h"

#include <QPointer>
#include <QQmlListProperty>
#include <QQuickWindow>

class QKeyEvent;

namespace vesk {

/// The behaviour of a menu: which entry is current, and all key handling while it is open. No key reaches the
/// window below until the menu has closed.
class MenuControl : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQmlListProperty<vesk::MenuEntry> entries READ entries CONSTANT)
    /// Index of the entry that Return would choose; -1 if there is none.
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)

public:
    using QObject::QObject;

    /// Opens in the window of `item`. Does nothing if it is open already or `item` is not in a window.
    Q_INVOKABLE void open(QQuickItem *item);
    Q_INVOKABLE void close();
    /// Closes, returns the focus and then triggers the entry. Does nothing if the entry cannot be chosen.
    Q_INVOKABLE void choose(int index);

    /// Makes the first selectable entry current, for a menu that was opened with a key.
    Q_INVOKABLE void selectFirst();

    [[nodiscard]] QQmlListProperty<MenuEntry> entries() { return {this, &m_entries}; }
    [[nodiscard]] int current() const { return m_current; }
    /// If the entry cannot be chosen, no entry becomes current.
    void setCurrent(int index);
    [[nodiscard]] bool isOpen() const { return !m_window.isNull(); }

Q_SIGNALS:
    void currentChanged();
    void isOpenChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void handleKey(const QKeyEvent &event);
    /// The next selectable entry from `start` in steps of `step`, wrapping around; -1 if there is none.
    [[nodiscard]] int findChoosable(int start, int step) const;
    /// The next entry after the current one whose text starts with `letter`; the current one if there is
    /// none.
    [[nodiscard]] int findByLetter(const QString &letter) const;

    QList<MenuEntry *> m_entries;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_formerFocus;
    int m_current = -1;
};

} // namespace vesk
