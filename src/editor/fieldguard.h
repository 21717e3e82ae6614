// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QEvent;
class QQmlEngine;
class QQuickItem;

namespace vesk {

/// Sees to it that no text item of a QML engine uses the toolkit's own clipboard: takes the keys and
/// clicks that copy, cut and paste, whichever item they go to, and has `FieldTransfer` do it. Owned by
/// the engine.
class FieldGuard final : public QObject
{
    Q_OBJECT

public:
    explicit FieldGuard(QQmlEngine &engine);

    /// Leaves an item to whoever copies and pastes for it, as note editors do.
    static void leaveAlone(QQuickItem &item);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isGuarded(const QQuickItem &item) const;

    QQmlEngine &m_engine;
};

} // namespace vesk
