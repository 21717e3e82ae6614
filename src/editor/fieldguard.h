// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QEvent;
class QQmlEngine;
class QQuickItem;

namespace vesk {

/// Watches all text items of a QML engine except note editors. None of them uses the toolkit's own clipboard:
/// keys and clicks that copy, cut and paste go to `FieldTransfer`, whichever item they are for. Other keys,
/// and input methods, go to `FieldEditing`. Owned by the engine.
class FieldGuard final : public QObject
{
    Q_OBJECT

public:
    explicit FieldGuard(QQmlEngine &engine);

    /// Excludes an item that something else copies and pastes for, such as a note editor.
    static void leaveAlone(QQuickItem &item);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isGuarded(const QQuickItem &item) const;

    QQmlEngine &m_engine;
};

} // namespace vesk
