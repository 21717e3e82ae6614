// SPDX-License-Identifier: MIT
#include "../components/memorydesktop.h"
#include "app/accesswindow.h"
#include "app/questions.h"
#include "platform/freedesktop/consent.h"
#include "platform/freedesktop/inidefaults.h"

#include <QGuiApplication>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The buttons and keys of the question for consent.
class TestAccessWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answerCountsWhateverWasAnsweredBefore_data();
    void answerCountsWhateverWasAnsweredBefore();
};

void TestAccessWindow::answerCountsWhateverWasAnsweredBefore_data()
{
    using Keys = QList<Qt::Key>;
    QTest::addColumn<bool>("wasGiven");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<bool>("isGiven");
    // The safe button has the focus; the other one is a Tab away.
    const Keys notNow{Qt::Key_Return};
    const Keys allow{Qt::Key_Tab, Qt::Key_Return};
    const Keys close{Qt::Key_Escape};
    QTest::newRow("allows") << false << allow << true;
    QTest::newRow("refuses") << false << notNow << false;
    QTest::newRow("closes the window") << false << close << false;
    QTest::newRow("withdraws") << true << notNow << false;
    QTest::newRow("allows again") << true << allow << true;
    QTest::newRow("looks only") << true << close << true;
}

void TestAccessWindow::answerCountsWhateverWasAnsweredBefore()
{
    QFETCH(const bool, wasGiven);
    QFETCH(const QList<Qt::Key>, keys);
    const QTemporaryDir folder;
    IniDefaults defaults(folder.filePath(u"Vesk.conf"_s));
    Consent consent(defaults);
    consent.setGiven(wasGiven);
    MemoryDesktop desktop;
    Questions questions(desktop.application);
    AccessWindow access(desktop.engine, consent, questions);
    access.show();
    auto *window = qobject_cast<QQuickView *>(QGuiApplication::topLevelWindows().constFirst());
    QVERIFY(window && QTest::qWaitForWindowActive(window));
    for (const Qt::Key key : keys)
        QTest::keyClick(window, key);
    QVERIFY(!window->isVisible());
    QTEST(consent.isGiven(), "isGiven");
}

QTEST_MAIN(TestAccessWindow)

#include "tst_accesswindow.moc"
