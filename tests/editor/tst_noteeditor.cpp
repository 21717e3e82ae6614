// SPDX-License-Identifier: MIT
#include "editorfixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

class NoteEditorTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private Q_SLOTS:
    void typedText_data();
    void typedText();
};

void NoteEditorTest::typedText_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << u"hello world"_s << u"hello world"_s;
    QTest::newRow("unticked") << u"[ ] Buy"_s << u"☐ Buy"_s;
    QTest::newRow("item") << u"- Milk\nBread"_s << u"• Milk\n• Bread"_s;
    QTest::newRow("done continues unticked") << u"[x] Done\nNext"_s << u"☑ Done\n☐ Next"_s;
    QTest::newRow("empty item") << u"- Milk\n\nx"_s << u"• Milk\nx"_s;
    QTest::newRow("backspace") << u"ab\b\bc"_s << u"c"_s;
}

void NoteEditorTest::typedText()
{
    QFETCH(QString, keys);
    EditorFixture fixture;
    fixture.type(keys);
    QTEST(fixture.text(), "text");
    if (!qEnvironmentVariableIsEmpty("VESK_PICTURES"))
        fixture.picture().save(qEnvironmentVariable("VESK_PICTURES") + u'/'
                               + QString::fromUtf8(QTest::currentDataTag()) + u".png"_s);
}

QTEST_MAIN(NoteEditorTest)
#include "tst_noteeditor.moc"
