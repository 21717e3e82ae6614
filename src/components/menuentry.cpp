// SPDX-License-Identifier: MIT
#include "components/menuentry.h"

namespace vesk {

void MenuEntry::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT changed();
}

void MenuEntry::setEnabled(bool isEnabled)
{
    if (m_isEnabled == isEnabled)
        return;
    m_isEnabled = isEnabled;
    Q_EMIT changed();
}

void MenuEntry::setVisible(bool isVisible)
{
    if (m_isVisible == isVisible)
        return;
    m_isVisible = isVisible;
    Q_EMIT changed();
}

} // namespace vesk
