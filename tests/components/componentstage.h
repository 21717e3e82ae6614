// SPDX-License-Identifier: MIT
#pragma once

#include "memorydesktop.h"

#include "components/theme.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

namespace vesk {

/// A window, over the platform in memory, with a piece of QML in it.
struct ComponentStage : MemoryDesktop
{
    explicit ComponentStage(const QByteArray &qml)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Vesk.Components\n" + qml, {});
        auto *item = qobject_cast<QQuickItem *>(component.create());
        if (!item)
            qFatal("%s", qUtf8Printable(component.errorString()));
        item->setParent(&view);
        view.resize(400, 400);
        item->setParentItem(view.contentItem());
        item->setSize(view.size());
        root = item;
        view.show();
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("The window did not come up.");
    }

    [[nodiscard]] QQuickItem *item(const QString &objectName) const
    {
        return root->findChild<QQuickItem *>(objectName);
    }

    void click(const QQuickItem *item)
    {
        QTest::mouseClick(&view, Qt::LeftButton, {},
                          item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
    }

    QQuickView view{&engine, nullptr};
    QQuickItem *root = nullptr;
};

} // namespace vesk
