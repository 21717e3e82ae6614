// SPDX-License-Identifier: MIT
#include "../components/memorydesktop.h"
#include "components/commandkeys.h"
#include "guide/guide.h"
#include "input/globalkeys.h"
#include "platform/memory/memorykeyboard.h"
#include "virtualdesktop/files.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// The guide in a separate window, over the in-memory platform.
struct Stage : MemoryDesktop
{
    explicit Stage(bool isTrusted, int height = 600, const GlobalKeys *keys = nullptr)
    {
        if (keys)
            lendKeys(engine, *keys);
        accessibility.setTrusted(isTrusted);
        guide.show();
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setInitialProperties({{u"guide"_s, QVariant::fromValue(&guide)}, {u"focus"_s, true}});
        view.setSource(QUrl(u"qrc:/qt/qml/Vesk/Guide/GuideView.qml"_s));
        view.resize(420, height);
        view.show();
        if (!view.rootObject() || !QTest::qWaitForWindowActive(&view))
            qFatal("The guide did not come up.");
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, key, modifiers);
    }
    /// What a screen reader says about the focused item.
    [[nodiscard]] QString focus() const
    {
        QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(view.activeFocusItem());
        return shown ? shown->text(QAccessible::Name) : QString();
    }
    [[nodiscard]] QQuickItem *scroller() const
    {
        const QList<QQuickItem *> parts = view.rootObject()->childItems();
        return *std::ranges::find_if(parts,
                                     [](QQuickItem *part) { return part->inherits("QQuickFlickable"); });
    }
    [[nodiscard]] qreal scrolled() const { return scroller()->property("contentY").toReal(); }

    Guide guide{accessibility, defaults};
    QQuickView view{&engine, nullptr};
};

/// Everything that a screen reader finds from here on, in order.
void collect(QAccessibleInterface *from, QStringList &names)
{
    for (int i = 0; from && i < from->childCount(); ++i) {
        QAccessibleInterface *child = from->child(i);
        if (child->state().invisible)
            continue;
        names.append(child->text(QAccessible::Name) + u" | "_s + child->text(QAccessible::Description));
        collect(child, names);
    }
}

QString heard(const QQuickView &view)
{
    QStringList names;
    collect(QAccessible::queryAccessibleInterface(view.rootObject()), names);
    return names.join(u'\n');
}

} // namespace

class GuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void showsTheUsersKeys();
    static void keysScroll();
    static void tabGoesAround();
    static void statusFollowsTheUser();
    static void isReadAloud();
};

void GuideTest::showsTheUsersKeys()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"Keys.conf"_s);
    QVERIFY(writeFile(file, "toggle=Super+Ctrl+Home\nwrite=none\nsave-prompt=Super+P\n"));
    MemoryHotKeys hotKeys;
    hotKeys.setTaken(combinationOf(Command::CaptureToLastNote));
    hotKeys.setHolders({u"openbox"_s, u"other"_s});
    GlobalKeys keys(hotKeys, file);
    keys.start();
    Stage stage(true, 600, &keys);
    const QString all = heard(stage.view);
    for (
        const QString &part :
        {u"Open Vesk anywhere, Ctrl, Super, Home"_s, u"Write a new note, Switched off in "_s,
         u"Select text and press Super+P to save it"_s,
         u"Add to your last note, Alt, Shift, Super, N, openbox or other uses these keys. Free them there"_s})
        QVERIFY2(all.contains(part), qPrintable(all));
    hotKeys.setFree(combinationOf(Command::CaptureToLastNote));
    keys.retry();
    const QString free = heard(stage.view);
    QVERIFY2(free.contains(u"Add to your last note, Alt, Shift, Super, N | "_s), qPrintable(free));
}

void GuideTest::keysScroll()
{
    Stage stage(true, 400);
    const qreal end = stage.scroller()->property("end").toReal();
    QVERIFY(end > 400);
    stage.press(Qt::Key_Up);
    QCOMPARE(stage.scrolled(), 0.0);
    stage.press(Qt::Key_Down);
    const qreal line = stage.scrolled();
    QVERIFY(line > 0);
    stage.press(Qt::Key_PageDown);
    const qreal page = stage.scrolled() - line;
    QVERIFY(page > line && page < stage.scroller()->height());
    stage.press(Qt::Key_PageUp);
    QCOMPARE(stage.scrolled(), line);
    stage.press(Qt::Key_End);
    QCOMPARE(stage.scrolled(), end);
    stage.press(Qt::Key_PageDown);
    QCOMPARE(stage.scrolled(), end);
    // The last row is entirely above the button.
    stage.view.resize(420, 700);
    QTRY_COMPARE(stage.scroller()->property("end").toReal(), end - 300);
    QTRY_COMPARE(stage.scrolled(), end - 300);
    stage.press(Qt::Key_Home);
    QCOMPARE(stage.scrolled(), 0.0);
}

void GuideTest::tabGoesAround()
{
    Stage stage(false, 300);
    QCOMPARE(stage.focus(), u"Quick Guide"_s);
    stage.press(Qt::Key_Tab);
    QCOMPARE(stage.focus(), u"Open Settings"_s);
    const QQuickItem *link = stage.view.activeFocusItem();
    const QRectF seen = stage.scroller()->mapRectToScene(stage.scroller()->boundingRect());
    QVERIFY(seen.contains(link->mapRectToScene(link->boundingRect())));
    stage.press(Qt::Key_Return);
    QCOMPARE(stage.accessibility.askCount(), 1);
    stage.press(Qt::Key_Tab);
    QCOMPARE(stage.focus(), u"Got it"_s);
    stage.press(Qt::Key_Tab);
    QCOMPARE(stage.focus(), u"Quick Guide"_s);
    stage.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(stage.focus(), u"Got it"_s);
}

void GuideTest::statusFollowsTheUser()
{
    Stage stage(false);
    QVERIFY(heard(stage.view).contains(u"Needs Accessibility access"_s));
    QVERIFY(heard(stage.view).contains(u"Open Settings"_s));
    stage.press(Qt::Key_Tab);
    stage.accessibility.setTrusted(true);
    QVERIFY(heard(stage.view).contains(u"Accessibility access allowed"_s));
    QVERIFY(!heard(stage.view).contains(u"Open Settings"_s));
    // The link that had the focus is gone; Escape still works.
    stage.press(Qt::Key_Escape);
    QVERIFY(!stage.guide.isShown());
}

void GuideTest::isReadAloud()
{
    Stage stage(true);
    const QString all = heard(stage.view);
    QVERIFY2(all.startsWith(u"Quick Guide"_s), qPrintable(all));
    for (const QString &part :
         {u"Open Vesk anywhere, Alt, Super, T | Press it in any app"_s,
          u"Checkboxes and lists, [, ], Space | Type [ ] and a space for a checkbox"_s, u"Got it"_s})
        QVERIFY2(all.contains(part), qPrintable(all));
    // Glyphs that no keyboard of this desktop has.
    static const QRegularExpression kGlyphs(u"[\u2318\u2325\u2303\u21E7\u21A9\u232B\u2423]"_s);
    QVERIFY2(!all.contains(kGlyphs), qPrintable(all));
}

QTEST_MAIN(GuideTest)
#include "tst_guide.moc"
