// SPDX-License-Identifier: MIT
#include "../components/memorydesktop.h"
#include "app/appupdater.h"
#include "platform/memory/memoryupdates.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;
using Outcome = Updates::Outcome;

/// What the user is told about a check for updates, and what the keys in that window do.
class TestAppUpdater : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesTheResult_data();
    void describesTheResult();
};

void TestAppUpdater::describesTheResult_data()
{
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("updater");
    QTest::addColumn<bool>("acceptsIt");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QStringList>("opened");
    const QString newer = u"Vesk: There is a newer Vesk"_s;
    const QString discover = u"org.kde.discover"_s;
    QTest::newRow("newer, opens the updater")
        << Outcome::Available << u"0.2.0"_s << discover << true << newer << QStringList{discover};
    QTest::newRow("newer, later") << Outcome::Available << u"0.2.0"_s << discover << false << newer
                                  << QStringList();
    QTest::newRow("newer, no updater")
        << Outcome::Available << u"0.2.0"_s << QString() << true << newer << QStringList();
    QTest::newRow("up to date") << Outcome::UpToDate << u"0.1.0"_s << discover << true
                                << u"Vesk: Vesk is up to date"_s << QStringList();
    QTest::newRow("not a package") << Outcome::NotInstalled << QString() << discover << true
                                   << u"Vesk: Your system does not update this copy of Vesk"_s
                                   << QStringList();
    QTest::newRow("no answer") << Outcome::Failed << QString() << discover << true
                               << u"Vesk: Could not check for updates"_s << QStringList();
}

void TestAppUpdater::describesTheResult()
{
    QFETCH(Outcome, outcome);
    QFETCH(QString, version);
    QFETCH(QString, updater);
    QFETCH(bool, acceptsIt);
    QFETCH(QString, heading);
    QFETCH(QStringList, opened);
    MemoryDesktop desktop;
    MemoryWorkspace &workspace = desktop.workspace;
    MemoryUpdates updates;
    if (!updater.isEmpty())
        workspace.install(updater);
    Questions questions(desktop.application);
    AppUpdater appUpdater(desktop.engine, updates, workspace, questions);
    updates.setCanCheck(true);
    appUpdater.checkForUpdates();
    QVERIFY(!appUpdater.canCheck());
    QVERIFY(QGuiApplication::topLevelWindows().isEmpty());

    updates.finish({.outcome = outcome, .version = version});
    QVERIFY(appUpdater.canCheck());
    QCOMPARE(QGuiApplication::topLevelWindows().size(), 1);
    auto *window = qobject_cast<QQuickView *>(QGuiApplication::topLevelWindows().constFirst());
    QVERIFY(window);
    // The user is still typing.
    QVERIFY(!window->isVisible());
    desktop.application.setAnyKeyDown(true);
    QTest::qWait(1000);
    QVERIFY(!window->isVisible());
    desktop.application.setAnyKeyDown(false);
    QTRY_VERIFY(window->isVisible());
    QCOMPARE(window->title(), heading);
    QVERIFY(window->rootObject()->property("message").toString().contains(version));
    window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window));
    // The user was typing something else when the window appeared.
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(window, key);
    QVERIFY(window->isVisible());
    QTest::qWait(1000);
    // No key answers before a button has been chosen. The last button accepts.
    QTest::keyClick(window, Qt::Key_Return);
    QVERIFY(window->isVisible());
    const bool hasTwo = !window->rootObject()->property("rejectLabel").toString().isEmpty();
    for (int tab = 0; tab < (hasTwo ? 2 : 1); ++tab)
        QTest::keyClick(window, Qt::Key_Tab);
    QTest::keyClick(window, acceptsIt ? Qt::Key_Return : Qt::Key_Escape);
    QVERIFY(!window->isVisible());
    QCOMPARE(workspace.openedApplications(), opened);
}

QTEST_MAIN(TestAppUpdater)

#include "tst_appupdater.moc"
