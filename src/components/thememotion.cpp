// SPDX-License-Identifier: MIT
#include "components/thememotion.h"

namespace vesk {

ThemeMotion::ThemeMotion(QObject *parent)
    : QObject(parent)
{
}

void ThemeMotion::setAllowed(bool isAllowed)
{
    if (isAllowed == m_isAllowed)
        return;
    m_isAllowed = isAllowed;
    Q_EMIT changed();
}

QVariantList ThemeMotion::springCurve()
{
    // Approximates 1 - (1 + wt) * exp(-wt) with w = 2 pi / 0.35 s over the spring's duration, by the end of
    // which it is at rest.
    return {0.33, 0.684, 0.127, 1, 1, 1};
}

} // namespace vesk
