// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

namespace vesk {

/// A stop of the Tab key that reports when it is reached that way, so that it can pass the focus on.
class TabStop : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit TabStop(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void reached();

protected:
    void focusInEvent(QFocusEvent *event) override;
};

} // namespace vesk
