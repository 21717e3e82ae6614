// SPDX-License-Identifier: MIT
#include "platform/x11/selectionbytes.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What other programs give for a list of targets and for a text.
class TestSelectionBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void targetsThatAreCutAreLeftOut();
    void everythingBecomesSomeText_data();
    void everythingBecomesSomeText();
};

void TestSelectionBytes::targetsThatAreCutAreLeftOut()
{
    for (const qsizetype size : {0, 1, 3, 4, 7})
        QCOMPARE(selectionbytes::atoms(QByteArray(size, '\1')),
                 QList<xcb_atom_t>(size / 4, xcb_atom_t{0x01010101}));
}

void TestSelectionBytes::everythingBecomesSomeText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<selectionbytes::Encoding>("encoding");
    QTest::addColumn<QString>("text");
    using Encoding = selectionbytes::Encoding;
    QTest::newRow("nothing") << QByteArray() << Encoding::Utf8 << QString();
    QTest::newRow("Latin-1") << QByteArray("caf\xE9") << Encoding::Latin1 << u"caf\u00E9"_s;
    QTest::newRow("Latin-1 that claims to be UTF-8")
        << QByteArray("caf\xE9") << Encoding::Utf8 << u"caf\uFFFD"_s;
    QTest::newRow("NUL") << QByteArray("a\0b", 3) << Encoding::Utf8 << QString(u"a\0b"_s);
    QTest::newRow("UTF-16 that claims to be UTF-8")
        << QByteArray("\xFE\xFF\0a", 4) << Encoding::Utf8 << QString(u"\uFFFD\uFFFD\0a"_s);
}

void TestSelectionBytes::everythingBecomesSomeText()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const selectionbytes::Encoding, encoding);
    QTEST(selectionbytes::text(bytes, encoding), "text");
}

QTEST_GUILESS_MAIN(TestSelectionBytes)

#include "tst_selectionbytes.moc"
