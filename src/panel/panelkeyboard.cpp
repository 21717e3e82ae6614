// SPDX-License-Identifier: MIT
#include "panel/panelkeyboard.h"

namespace vesk {

void PanelKeyboard::request(Field field)
{
    if (m_requestedField != field) {
        m_requestedField = field;
        Q_EMIT requestedFieldChanged();
    }
    ++m_fieldRequest;
    Q_EMIT fieldRequestChanged();
}

void PanelKeyboard::setActiveField(Field field)
{
    if (m_activeField == field)
        return;
    m_activeField = field;
    Q_EMIT activeFieldChanged();
}

} // namespace vesk
