// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

namespace vesk {

/// A place in the order of the Tab key that tells when it is reached that way, so that it can pass the
/// keyboard on.
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
