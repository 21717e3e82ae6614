// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktoplooks.h"
#include "platform/x11/xsettingsdata.h"

#include <QDataStream>
#include <QIODevice>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What is read from a desktop's settings.
class DesktopLooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fontsAreReadByFamilyAndSize_data();
    void fontsAreReadByFamilyAndSize();
    void settingsAreReadInBothByteOrders_data();
    void settingsAreReadInBothByteOrders();
    void truncatedSettingsYieldCompleteEntries();
    void themesTellTheirColors_data();
    void themesTellTheirColors();

private:
    [[nodiscard]] static QByteArray sample(QDataStream::ByteOrder order);
};

void DesktopLooksTest::fontsAreReadByFamilyAndSize_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("family");
    QTest::addColumn<qreal>("scale");

    QTest::newRow("family and size") << u"Cantarell 11"_s << u"Cantarell"_s << 1.0;
    QTest::newRow("family of words") << u"Noto Sans Display 10"_s << u"Noto Sans Display"_s << 1.0;
    QTest::newRow("with styles") << u"Ubuntu Semi-Bold Italic 10.5"_s << u"Ubuntu"_s << 1.0;
    QTest::newRow("a style is a family") << u"Medium 10"_s << u"Medium"_s << 1.0;
    QTest::newRow("a list") << u"Inter, Sans 10"_s << u"Inter"_s << 1.0;
    QTest::newRow("large") << u"Sans 16.5"_s << u"Sans"_s << 1.5;
    QTest::newRow("small") << u"Sans 9"_s << u"Sans"_s << 0.9;
    QTest::newRow("beyond what the panel can hold") << u"Sans 72"_s << u"Sans"_s << 1.6;
    QTest::newRow("no size") << u"Sans"_s << QString() << 0.0;
    QTest::newRow("no family") << u"11"_s << QString() << 0.0;
    QTest::newRow("nothing") << QString() << QString() << 0.0;
}

void DesktopLooksTest::fontsAreReadByFamilyAndSize()
{
    QFETCH(QString, description);
    QFETCH(QString, family);
    const auto font = textFontFrom(description);
    QCOMPARE(font.has_value(), !family.isEmpty());
    if (!font)
        return;
    QCOMPARE(font->family, family);
    QTEST(font->scale, "scale");
}

QByteArray DesktopLooksTest::sample(QDataStream::ByteOrder order)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setByteOrder(order);
    const auto writePadded = [&stream](const QByteArray &bytes) {
        stream.writeRawData(bytes.constData(), static_cast<int>(bytes.size()));
        const int padding = static_cast<int>(-bytes.size() & 3);
        stream.writeRawData("\0\0\0", padding);
    };
    const auto writeHead = [&](quint8 type, const QByteArray &name) {
        stream << type << quint8(0) << quint16(name.size());
        writePadded(name);
        stream << quint32(7);
    };
    constexpr quint32 kCount = 4;
    stream << quint8(order == QDataStream::BigEndian ? 1 : 0) << quint8(0) << quint16(0) << quint32(3)
           << kCount;
    writeHead(1, "Net/ThemeName");
    stream << quint32(13);
    writePadded("Greybird-dark");
    writeHead(2, "Net/Some/Colour");
    stream << quint64(0x0102030405060708);
    writeHead(0, "Gtk/EnableAnimations");
    stream << qint32(0);
    writeHead(0, "Net/CursorBlinkTime");
    stream << qint32(900);
    return data;
}

void DesktopLooksTest::settingsAreReadInBothByteOrders_data()
{
    QTest::addColumn<QDataStream::ByteOrder>("order");
    QTest::newRow("little endian") << QDataStream::LittleEndian;
    QTest::newRow("big endian") << QDataStream::BigEndian;
}

void DesktopLooksTest::settingsAreReadInBothByteOrders()
{
    QFETCH(QDataStream::ByteOrder, order);
    const DesktopLooks looks = looksFrom(xsettingsFrom(sample(order)));
    QCOMPARE(looks.colorScheme, Appearance::ColorScheme::Dark);
    QCOMPARE(looks.reducesMotion, true);
    QCOMPARE(looks.cursorBlinkTime, std::chrono::milliseconds(900));
    QCOMPARE(looks.increasesContrast, false);
    QVERIFY(!looks.textFont && !looks.cursorBlinks);
}

void DesktopLooksTest::truncatedSettingsYieldCompleteEntries()
{
    const QByteArray whole = sample(QDataStream::LittleEndian);
    qsizetype known = 0;
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const qsizetype read = xsettingsFrom(whole.left(size)).size();
        QVERIFY(read >= known);
        known = read;
    }
    QCOMPARE(known, 4);
    // Every length in it may be wrong.
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray broken = whole;
        broken[at] = '\xff';
        QVERIFY(xsettingsFrom(broken).size() <= 4);
    }
}

void DesktopLooksTest::themesTellTheirColors_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<bool>("isStrong");
    QTest::newRow("light") << u"Adwaita"_s << false << false;
    QTest::newRow("dark") << u"Adwaita-dark"_s << true << false;
    QTest::newRow("in the middle") << u"Arc-Dark-solid"_s << true << false;
    QTest::newRow("strong") << u"HighContrast"_s << false << true;
    QTest::newRow("strong and dark") << u"HighContrastInverse"_s << true << true;
}

void DesktopLooksTest::themesTellTheirColors()
{
    QFETCH(QString, theme);
    const DesktopLooks looks = looksFrom({{u"Net/ThemeName"_s, theme}});
    QTEST(looks.colorScheme == Appearance::ColorScheme::Dark, "isDark");
    QTEST(looks.increasesContrast.value_or(false), "isStrong");
}

QTEST_GUILESS_MAIN(DesktopLooksTest)
#include "tst_desktoplooks.moc"
