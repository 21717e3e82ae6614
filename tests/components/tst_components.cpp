// SPDX-License-Identifier: MIT
#include "memorydesktop.h"
#include "virtualdesktop/files.h"

#include "components/commandkeys.h"
#include "components/keylabels.h"
#include "components/palette.h"
#include "components/symboltable.h"
#include "components/theme.h"
#include "input/globalkeys.h"
#include "input/keynames.h"
#include "platform/memory/memorykeyboard.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QStyleHints>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// A language that changes every word.
class OtherLanguage : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char * /*context*/, const char *source, const char * /*remark*/,
                                    int /*number*/) const override
    {
        return QString::fromLatin1(source) + u"ix"_s;
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace

class ComponentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void combinationsInTextsAreSpelt_data();
    void combinationsInTextsAreSpelt();
    void everyKeyWithANameIsTranslated();
    void everyAccentCanBeRead_data();
    void everyAccentCanBeRead();
    void everySymbolHasAPicture();
    void themeFollowsTheDesktop();
    void menuTellsWhichKeysWork_data();
    void menuTellsWhichKeysWork();
};

void ComponentsTest::combinationsInTextsAreSpelt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("global");
    QTest::addColumn<QString>("window");

    QTest::newRow("with a letter") << u"New Note (\u2303\u2325\u2318N)"_s << u"New Note (Ctrl+Alt+Super+N)"_s
                                   << u"New Note (Ctrl+Alt+Ctrl+N)"_s;
    QTest::newRow("with a key") << u"Delete (\u21E7\u2318\u232B)"_s << u"Delete (Shift+Super+Backspace)"_s
                                << u"Delete (Shift+Ctrl+Backspace)"_s;
    QTest::newRow("a key alone, then a word")
        << u"Press \u21A9 to save"_s << u"Press Enter to save"_s << u"Press Enter to save"_s;
    QTest::newRow("no key") << u"Quit Vesk"_s << u"Quit Vesk"_s << u"Quit Vesk"_s;
}

void ComponentsTest::combinationsInTextsAreSpelt()
{
    QFETCH(QString, text);
    QTEST(KeyLabels::spelt(text, KeyLabels::Global), "global");
    QTEST(KeyLabels::spelt(text, KeyLabels::Window), "window");
}

/// Keyboards in other countries have other words on them.
void ComponentsTest::everyKeyWithANameIsTranslated()
{
    OtherLanguage language;
    QCoreApplication::installTranslator(&language);
    int named = 0;
    for (int position = 1; position < 128; ++position) {
        const auto key = KeyPosition(position);
        const QString name = keynames::nameOf(key, nullptr);
        // Letters, digits and F1 to F12 are the same everywhere.
        if (name.size() < 2 || (name.startsWith(u'F') && name.at(1).isDigit()))
            continue;
        const QString glyph = keynames::glyphs({.key = key, .modifiers = Qt::AltModifier}, nullptr).last();
        const QString label = KeyLabels::label(glyph, KeyLabels::Global);
        QVERIFY2(label.endsWith(u"ix"), qPrintable(name));
        ++named;
    }
    QVERIFY(named > 15);
}

void ComponentsTest::everyAccentCanBeRead_data()
{
    QTest::addColumn<QColor>("accent");

    QTest::newRow("pale yellow") << QColor(0xff, 0xf3, 0xb0);
    QTest::newRow("deep navy") << QColor(0x0b, 0x10, 0x40);
    QTest::newRow("white") << QColor(Qt::white);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("no accent colour: Vesk's own blue") << QColor();
}

void ComponentsTest::everyAccentCanBeRead()
{
    QFETCH(QColor, accent);
    for (const bool isDark : {false, true}) {
        for (const bool isStrong : {false, true}) {
            const Palette made = palette({.isDark = isDark,
                                          .hasHighContrast = isStrong,
                                          .accent = accent.isValid() ? std::optional(accent) : std::nullopt});
            QVERIFY(contrast(made.accent, made.background) >= (isStrong ? 7 : 3));
            QVERIFY(contrast(made.onAccent, made.accentFill) >= (isStrong ? 7 : 4));
            QVERIFY(contrast(made.accentFill, made.background) >= 2.5);
            QVERIFY(contrast(made.attentionText, made.background) >= (isStrong ? 7 : 4.5));
            QVERIFY(contrast(made.success, made.background) >= (isStrong ? 7 : 4.5));
        }
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
    MemoryDesktop desktop;
    MemoryAppearance &appearance = desktop.appearance;
    Theme *theme = Theme::create(&desktop.engine, &desktop.engine);
    QVERIFY(theme->motion()->spring() > 0);
    const QColor lightGround = theme->background();

    QSignalSpy changed(theme, &Theme::changed);
    appearance.setColorScheme(Appearance::ColorScheme::Dark);
    appearance.setReduceMotion(true);
    QCOMPARE(changed.size(), 2);
    QVERIFY(theme->background().lightnessF() < lightGround.lightnessF());
    QCOMPARE(theme->motion()->spring(), 0);
    QCOMPARE(theme->motion()->press(), 0);
    QCOMPARE(theme->motion()->ease(), 0);

    appearance.setAccentColor(QColor(0x00, 0x80, 0x40));
    QCOMPARE(theme->accent().hslHue(), QColor(0x00, 0x80, 0x40).hslHue());
    const qreal usualLine = theme->edge().alphaF();
    appearance.setIncreaseContrast(true);
    QCOMPARE(contrast(theme->primary(), theme->background()), 21.0);
    QVERIFY(theme->edge().alphaF() > 2 * usualLine);

    const int usualSize = theme->fonts()->title().pixelSize();
    appearance.setTextFont({.family = u"Some Family"_s, .scale = 1.5});
    QCOMPARE(theme->fonts()->title().family(), u"Some Family"_s);
    QCOMPARE(theme->fonts()->title().pixelSize(), qRound(1.5 * usualSize));
    appearance.setCursorFlashTime(std::chrono::milliseconds(0));
    QCOMPARE(QGuiApplication::styleHints()->cursorFlashTime(), 0);
}

void ComponentsTest::menuTellsWhichKeysWork_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QList<Command>>("taken");
    QTest::addColumn<QStringList>("holders");
    QTest::addColumn<QString>("newNote");
    QTest::addColumn<QString>("takenTitle");
    using Ids = QList<Command>;
    const QString newNote = u"New Note (Ctrl+Alt+Super+N)"_s;
    const QString taken = u"New Note (Ctrl+Alt+Super+N, taken)"_s;
    QTest::newRow("all works") << QString() << Ids() << QStringList() << newNote << QString();
    QTest::newRow("own") << u"write=Super+Left"_s << Ids() << QStringList() << u"New Note (Super+Left)"_s
                         << QString();
    QTest::newRow("off") << u"write=none"_s << Ids{Command::Write} << QStringList() << u"New Note"_s
                         << QString();
    QTest::newRow("one, by one") << QString() << Ids{Command::Write} << QStringList{u"Openbox"_s} << taken
                                 << u"1 Key(s) Taken by Openbox…"_s;
    QTest::newRow("two, by nobody knows whom") << QString() << Ids{Command::Write, Command::Toggle}
                                               << QStringList() << taken << u"2 Key(s) Taken…"_s;
    QTest::newRow("two, by one of two")
        << QString() << Ids{Command::CaptureToLastNote, Command::Toggle}
        << QStringList{u"Openbox"_s, u"other"_s} << newNote << u"2 Key(s) Taken…"_s;
}

void ComponentsTest::menuTellsWhichKeysWork()
{
    QFETCH(const QString, file);
    QFETCH(const QList<Command>, taken);
    QFETCH(const QStringList, holders);
    const QTemporaryDir folder;
    const QString written = folder.filePath(u"Keys.conf"_s);
    QVERIFY(writeFile(written, file.toUtf8()));
    MemoryHotKeys keyboard;
    for (const Command command : taken)
        keyboard.setTaken(combinationOf(command));
    keyboard.setHolders(holders);
    GlobalKeys keys(keyboard, written);
    const CommandKeys shown(&keys);
    keys.start();
    QTEST(shown.newNoteTitle(), "newNote");
    QTEST(shown.takenTitle(), "takenTitle");
}

QTEST_MAIN(ComponentsTest)
#include "tst_components.moc"
