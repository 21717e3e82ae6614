// SPDX-License-Identifier: MIT
#include "memorydesktop.h"
#include "shownitems.h"

#include "components/menucontrol.h"
#include "components/theme.h"
#include "translations/translation.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQuickView>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// A window that contains a piece of QML, over the in-memory platform.
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

} // namespace

/// The controls, with real keys and a real pointer.
class ControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuIsChosenFromByKeys_data();
    void menuIsChosenFromByKeys();
    void menuIsChosenFromWithoutKeys();
    void menuStaysInTheWindow_data();
    void menuStaysInTheWindow();
    void helpComesUpUnderARestingPointer();
    void thumbMovesALongList();
    void headerOffersTheOtherState();

private:
    /// Loads a page with a field and a menu, and opens the menu at this point of the field.
    void openMenu(qreal x = 10, qreal y = 10);
    [[nodiscard]] QStringList chosen() const
    {
        return m_stage->root->property("chosen").toString().split(u' ', Qt::SkipEmptyParts);
    }
    /// The visible row of an entry; null if there is none.
    [[nodiscard]] QQuickItem *row(const QString &text) const;

    std::unique_ptr<ComponentStage> m_stage;
};

void ControlsTest::openMenu(qreal x, qreal y)
{
    m_stage = std::make_unique<ComponentStage>(R"qml(
        Item {
            id: page
            property string chosen
            property int keys: 0
            property real x0
            property real y0
            function open() { menu.openAt(page, x0, y0) }
            Keys.onPressed: keys += 1
            TextInput { id: field; objectName: "field"; focus: true; width: 100; height: 20
                        Component.onCompleted: forceActiveFocus() }
            Menu {
                id: menu
                objectName: "menu"
                name: "Things"
                MenuEntry { text: "Off"; isEnabled: false; onTriggered: page.chosen += "off " }
                MenuEntry { text: "First (⌘F)"; onTriggered: page.chosen += "first " }
                MenuEntry { }
                MenuEntry { text: "Third"; isVisible: false; onTriggered: page.chosen += "hidden " }
                MenuEntry { text: "Second"; onTriggered: page.chosen += "second " }
                MenuEntry { text: "Fourth"; onTriggered: page.chosen += "fourth " }
            }
        })qml");
    m_stage->root->setProperty("x0", x);
    m_stage->root->setProperty("y0", y);
    QMetaObject::invokeMethod(m_stage->root, "open");
    QVERIFY(m_stage->item(u"menu"_s)->isVisible());
}

QQuickItem *ControlsTest::row(const QString &text) const
{
    const auto isIt = [&text](QQuickItem &item) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&item);
        return accessible && accessible->text(QAccessible::Name) == text;
    };
    return shownItems(m_stage->view, isIt).value(0);
}

void ControlsTest::menuIsChosenFromByKeys_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QStringList>("chosen");
    using Keys = QList<Qt::Key>;
    const QStringList none;

    QTest::newRow("down is the first that can be chosen")
        << Keys{Qt::Key_Down, Qt::Key_Return} << QStringList{u"first"_s};
    QTest::newRow("down passes over the divider")
        << Keys{Qt::Key_Down, Qt::Key_Down, Qt::Key_Space} << QStringList{u"second"_s};
    QTest::newRow("up is the last") << Keys{Qt::Key_Up, Qt::Key_Enter} << QStringList{u"fourth"_s};
    QTest::newRow("round the end") << Keys{Qt::Key_End, Qt::Key_Down, Qt::Key_Return}
                                   << QStringList{u"first"_s};
    QTest::newRow("round the start") << Keys{Qt::Key_Home, Qt::Key_Up, Qt::Key_Return}
                                     << QStringList{u"fourth"_s};
    QTest::newRow("a letter") << Keys{Qt::Key_S, Qt::Key_Return} << QStringList{u"second"_s};
    QTest::newRow("a letter again is the next")
        << Keys{Qt::Key_F, Qt::Key_F, Qt::Key_Return} << QStringList{u"fourth"_s};
    QTest::newRow("a letter of what is off") << Keys{Qt::Key_O, Qt::Key_Return} << none;
    QTest::newRow("a letter of nothing") << Keys{Qt::Key_X, Qt::Key_Return} << none;
    QTest::newRow("nothing is chosen yet") << Keys{Qt::Key_Return} << none;
    QTest::newRow("escape") << Keys{Qt::Key_Down, Qt::Key_Escape} << none;
}

void ControlsTest::menuIsChosenFromByKeys()
{
    QFETCH(QList<Qt::Key>, keys);
    openMenu();
    for (const Qt::Key key : keys)
        QTest::keyClick(&m_stage->view, key);
    QTEST(chosen(), "chosen");
    const bool isAnswered = !chosen().isEmpty() || keys.last() == Qt::Key_Escape;
    QCOMPARE(m_stage->item(u"menu"_s)->isVisible(), !isAnswered);
    // The field has the focus again.
    QCOMPARE(m_stage->item(u"field"_s)->hasActiveFocus(), isAnswered);
    QCOMPARE(m_stage->root->property("keys").toInt(), 0);
}

void ControlsTest::menuIsChosenFromWithoutKeys()
{
    openMenu();
    QQuickItem *menu = m_stage->item(u"menu"_s);
    m_stage->click(row(u"Off"_s));
    QVERIFY(menu->isVisible());
    m_stage->click(row(u"Second"_s));
    QCOMPARE(chosen(), QStringList{u"second"_s});
    QVERIFY(!menu->isVisible());

    QMetaObject::invokeMethod(m_stage->root, "open");
    QTest::mouseClick(&m_stage->view, Qt::RightButton, {}, QPoint(390, 390));
    QVERIFY(!menu->isVisible());
    QCOMPARE(chosen(), QStringList{u"second"_s});
    // The same as a screen reader would: by name, with the keys in words.
    QMetaObject::invokeMethod(m_stage->root, "open");
    QAccessibleInterface *first = QAccessible::queryAccessibleInterface(row(u"First (Ctrl+F)"_s));
    first->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(chosen(), (QStringList{u"second"_s, u"first"_s}));
}

void ControlsTest::menuStaysInTheWindow_data()
{
    QTest::addColumn<QPointF>("at");
    QTest::newRow("top left") << QPointF(0, 0);
    QTest::newRow("bottom right") << QPointF(399, 399);
    QTest::newRow("outside") << QPointF(-50, 900);
}

void ControlsTest::menuStaysInTheWindow()
{
    QFETCH(QPointF, at);
    openMenu(at.x(), at.y());
    const QQuickItem *sheet = row(u"Things"_s);
    QVERIFY(sheet);
    QVERIFY(QRectF(0, 0, 400, 400).contains(sheet->mapRectToScene(sheet->boundingRect())));
}

void ControlsTest::helpComesUpUnderARestingPointer()
{
    ComponentStage stage(R"qml(
        Item {
            SymbolButton { objectName: "button"; x: 380; y: 370; symbol: "trash"; name: "Delete this very note" }
        })qml");
    const auto bubbleText = [&stage]() -> const QQuickItem * {
        const QList<QQuickItem *> items = stage.view.contentItem()->childItems();
        for (const QQuickItem *item : items) {
            const QVariant text = item->property("text");
            if (text.toString() == u"Delete this very note"_s)
                return item;
        }
        return nullptr;
    };
    QTest::mouseMove(&stage.view, QPoint(385, 380));
    QVERIFY(!bubbleText());
    QTRY_VERIFY(bubbleText());
    QVERIFY(QRectF(0, 0, 400, 400).contains(bubbleText()->mapRectToScene(bubbleText()->boundingRect())));
    QTest::mouseMove(&stage.view, QPoint(10, 10));
    QTRY_VERIFY(!bubbleText());
}

void ControlsTest::thumbMovesALongList()
{
    ComponentStage stage(R"qml(
        Item {
            ListView {
                id: view
                objectName: "list"
                anchors.fill: parent
                model: 500
                delegate: Item { required property int index; width: 400; height: index % 2 ? 30 : 70 }
            }
            ScrollThumb { objectName: "thumb"; list: view; anchors.right: parent.right
                          anchors.top: parent.top; anchors.bottom: parent.bottom }
        })qml");
    auto *list = stage.item(u"list"_s);
    const auto firstRow = [list] {
        int index = -1;
        const qreal top = list->property("contentY").toReal() + 1;
        QMetaObject::invokeMethod(list, "indexAt", Q_RETURN_ARG(int, index), Q_ARG(qreal, 5),
                                  Q_ARG(qreal, top));
        return index;
    };
    QTRY_VERIFY(stage.item(u"thumb"_s)->isVisible());
    QCOMPARE(firstRow(), 0);
    // The thumb is at least 32 high, so its track is 368 long.
    const auto drag = [&stage](int from, int to) {
        QTest::mousePress(&stage.view, Qt::LeftButton, {}, QPoint(392, from));
        for (int step = 1; step <= 8; ++step)
            QTest::mouseMove(&stage.view, QPoint(392, from + (to - from) * step / 8));
        QTest::mouseRelease(&stage.view, Qt::LeftButton, {}, QPoint(392, to));
    };
    drag(10, 10 + 184);
    QVERIFY2(qAbs(firstRow() - 246) < 12, qPrintable(QString::number(firstRow())));
    drag(10 + 184, 399);
    QVERIFY(list->property("atYEnd").toBool());
    drag(390, 0);
    QCOMPARE(firstRow(), 0);
}

void ControlsTest::headerOffersTheOtherState()
{
    const Translation english({u"en"_s});
    ComponentStage stage(R"qml(
        SectionHeader {
            title: "Pinned"; count: 12; isCollapsed: false
            onClicked: isCollapsed = !isCollapsed
        })qml");
    stage.root->setHeight(20);
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(stage.root);
    QCOMPARE(heard->text(QAccessible::Description), u"Hide"_s);
    QCOMPARE(heard->text(QAccessible::Name), u"Pinned, 12 items, expanded"_s);
    stage.root->setProperty("count", 1);
    stage.click(stage.root);
    QCOMPARE(heard->text(QAccessible::Name), u"Pinned, 1 item, collapsed"_s);
    QCOMPARE(heard->text(QAccessible::Description), u"Show"_s);
    QTest::keyClick(&stage.view, Qt::Key_Tab);
    QTest::keyClick(&stage.view, Qt::Key_Space);
    QCOMPARE(heard->text(QAccessible::Description), u"Hide"_s);
}

QTEST_MAIN(ControlsTest)
#include "tst_controls.moc"
