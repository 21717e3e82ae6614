// SPDX-License-Identifier: MIT
#include "editor/heightreport.h"

#include <cmath>

namespace vesk {

namespace {

/// Below this the text does not have its real width yet.
constexpr qreal kLeastWidth = 20;
constexpr qreal kLeastChange = 0.5;

} // namespace

HeightReport::HeightReport(QObject *parent)
    : QObject(parent)
{
    connect(this, &HeightReport::changed, this, [this] {
        if (!std::exchange(m_isWaiting, true))
            QMetaObject::invokeMethod(this, &HeightReport::report, Qt::QueuedConnection);
    });
}

void HeightReport::report()
{
    m_isWaiting = false;
    if (m_width <= kLeastWidth || std::abs(m_contentHeight - m_reported) <= kLeastChange)
        return;
    m_reported = m_contentHeight;
    Q_EMIT reported(m_reported);
}

} // namespace vesk
