// SPDX-License-Identifier: MIT
#include "components/keylabels.h"
#include "components/palette.h"
#include "components/surroundings.h"
#include "components/symboltable.h"
#include "components/theme.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorywindows.h"
#include "platform/memory/memoryworkspace.h"

#include <QPainter>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

class ComponentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyLabelsSayWhatWorksInTheirPlace_data();
    void keyLabelsSayWhatWorksInTheirPlace();
    void everyAccentCanBeRead_data();
    void everyAccentCanBeRead();
    void everySymbolHasAPicture();
    void themeFollowsTheDesktop();
    void iconIsLookedUpOnce();
};

void ComponentsTest::keyLabelsSayWhatWorksInTheirPlace_data()
{
    QTest::addColumn<QString>("glyph");
    QTest::addColumn<QString>("global");
    QTest::addColumn<QString>("window");

    QTest::newRow("command") << u"\u2318"_s << u"Super"_s << u"Ctrl"_s;
    QTest::newRow("option") << u"\u2325"_s << u"Alt"_s << u"Alt"_s;
    QTest::newRow("a letter is its own label") << u"N"_s << u"N"_s << u"N"_s;
}

void ComponentsTest::keyLabelsSayWhatWorksInTheirPlace()
{
    QFETCH(QString, glyph);
    QTEST(KeyLabels::label(glyph, KeyLabels::Global), "global");
    QTEST(KeyLabels::label(glyph, KeyLabels::Window), "window");
}

void ComponentsTest::everyAccentCanBeRead_data()
{
    QTest::addColumn<QColor>("accent");

    QTest::newRow("pale yellow") << QColor(0xff, 0xf3, 0xb0);
    QTest::newRow("deep navy") << QColor(0x0b, 0x10, 0x40);
    QTest::newRow("white") << QColor(Qt::white);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("none: the own blue") << QColor();
}

void ComponentsTest::everyAccentCanBeRead()
{
    QFETCH(QColor, accent);
    for (const bool isDark : {false, true}) {
        const Palette made = palette(isDark, accent.isValid() ? std::optional(accent) : std::nullopt);
        QVERIFY(contrast(made.accent, made.background) >= 3);
        QVERIFY(contrast(made.onAccent, made.accent) >= 2.6);
    }
}

void ComponentsTest::everySymbolHasAPicture()
{
    for (const QString &symbol : symboltable::symbols()) {
        QSvgRenderer renderer(symboltable::findPicture(symbol).value());
        QVERIFY2(renderer.isValid(), qPrintable(symbol));
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        const QImage empty = image;
        QPainter painter(&image);
        renderer.render(&painter, image.rect());
        painter.end();
        QVERIFY2(image != empty, qPrintable(symbol));
    }
    QVERIFY(!symboltable::findPicture(u"no.such.symbol"_s));
}

void ComponentsTest::themeFollowsTheDesktop()
{
    MemoryAppearance appearance;
    MemoryWorkspace workspace;
    const MemoryScreens screens;
    MemoryWindows windows(screens);
    QQmlEngine engine;
    lendToEngine(engine, appearance, workspace, windows);
    const Theme *theme = Theme::create(&engine, &engine);
    QVERIFY(theme->springDuration() > 0);
    const QColor lightGround = theme->background();

    QSignalSpy changed(theme, &Theme::changed);
    appearance.setColorScheme(Appearance::ColorScheme::Dark);
    appearance.setReduceMotion(true);
    QCOMPARE(changed.size(), 2);
    QVERIFY(theme->background().lightnessF() < lightGround.lightnessF());
    QCOMPARE(theme->springDuration(), 0);
    QCOMPARE(theme->pressDuration(), 0);
}

void ComponentsTest::iconIsLookedUpOnce()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    MemoryAppearance appearance;
    MemoryWorkspace workspace;
    workspace.install(u"org.example.Editor"_s, QIcon(pixmap));
    const MemoryScreens screens;
    MemoryWindows windows(screens);
    QQmlEngine engine;
    lendToEngine(engine, appearance, workspace, windows);
    Surroundings &surroundings = Surroundings::of(engine);

    QVERIFY(surroundings.icon(u"org.example.Gone"_s).isNull());
    const qint64 first = surroundings.icon(u"org.example.Editor"_s).cacheKey();
    workspace.install(u"org.example.Editor"_s, QIcon(QPixmap(4, 4)));
    QCOMPARE(surroundings.icon(u"org.example.Editor"_s).cacheKey(), first);
}

QTEST_MAIN(ComponentsTest)
#include "tst_components.moc"
