// SPDX-License-Identifier: MIT
#include "components/menucontrol.h"

#include <QKeyEvent>
#include <QQuickItem>

namespace vesk {

void MenuControl::open(QQuickItem *item)
{
    QQuickWindow *window = item ? item->window() : nullptr;
    if (!window || m_window)
        return;
    m_window = window;
    m_formerFocus = window->activeFocusItem();
    // Event filters installed last run first: before the window's own keys.
    window->installEventFilter(this);
    Q_EMIT isOpenChanged();
}

void MenuControl::close()
{
    if (!m_window)
        return;
    m_window->removeEventFilter(this);
    m_window.clear();
    setCurrent(-1);
    if (m_formerFocus && m_formerFocus->isVisible())
        m_formerFocus->forceActiveFocus();
    m_formerFocus.clear();
    Q_EMIT isOpenChanged();
}

void MenuControl::choose(int index)
{
    const QPointer<MenuEntry> entry = m_entries.value(index);
    if (!entry || !entry->canBeChosen())
        return;
    close();
    if (entry)
        Q_EMIT entry->triggered();
}

void MenuControl::selectFirst()
{
    if (isOpen())
        setCurrent(findChoosable(0, 1));
}

void MenuControl::setCurrent(int index)
{
    const MenuEntry *entry = m_entries.value(index);
    const int current = entry && entry->canBeChosen() ? index : -1;
    if (m_current == current)
        return;
    m_current = current;
    Q_EMIT currentChanged();
}

bool MenuControl::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        handleKey(*static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::ShortcutOverride:
        // Keep the key from triggering the program's shortcuts.
        event->accept();
        return true;
    case QEvent::KeyRelease:
        return true;
    case QEvent::Hide:
    case QEvent::FocusOut:
        close();
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void MenuControl::handleKey(const QKeyEvent &event)
{
    // Only the arrows repeat while held: the key that opened the menu must not also choose an entry.
    if (event.isAutoRepeat() && event.key() != Qt::Key_Down && event.key() != Qt::Key_Up)
        return;
    const int last = static_cast<int>(m_entries.size()) - 1;
    switch (event.key()) {
    case Qt::Key_Down:
        setCurrent(findChoosable(m_current + 1, 1));
        return;
    case Qt::Key_Up:
        setCurrent(findChoosable(m_current < 0 ? last : m_current - 1, -1));
        return;
    case Qt::Key_Home:
    case Qt::Key_PageUp:
        setCurrent(findChoosable(0, 1));
        return;
    case Qt::Key_End:
    case Qt::Key_PageDown:
        setCurrent(findChoosable(last, -1));
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        choose(m_current);
        return;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        close();
        return;
    default:
        if (!event.text().isEmpty())
            setCurrent(findByLetter(event.text()));
    }
}

int MenuControl::findChoosable(int start, int step) const
{
    const int count = static_cast<int>(m_entries.size());
    for (int i = 0; i < count; ++i) {
        const int index = (start + i * step + 2 * count) % count;
        if (m_entries.at(index)->canBeChosen())
            return index;
    }
    return -1;
}

int MenuControl::findByLetter(const QString &letter) const
{
    const int count = static_cast<int>(m_entries.size());
    for (int i = 1; i <= count; ++i) {
        const int index = (std::max(m_current, -1) + i) % count;
        const MenuEntry *entry = m_entries.at(index);
        if (entry->canBeChosen() && entry->text().startsWith(letter, Qt::CaseInsensitive))
            return index;
    }
    return m_current;
}

} // namespace vesk
