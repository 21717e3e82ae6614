// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// Reports the height of an editor's content to its host: after the layout that changed it, and only if the
/// change is visible.
class HeightReport : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal width MEMBER m_width NOTIFY changed)
    Q_PROPERTY(qreal contentHeight MEMBER m_contentHeight NOTIFY changed)

public:
    explicit HeightReport(QObject *parent = nullptr);

Q_SIGNALS:
    void changed();
    void reported(qreal height);

private:
    void report();

    qreal m_width = 0;
    qreal m_contentHeight = 0;
    qreal m_reported = -1;
    bool m_isWaiting = false;
};

} // namespace vesk
