// SPDX-License-Identifier: MIT
#include "bustest.h"
#include "fakepackagekit.h"

#include "platform/freedesktop/packagekitupdates.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;
using Outcome = Updates::Outcome;
using Failure = FakePackageKit::Script::Failure;

/// Updates with a PackageKit on the test's bus.
class TestPackageKitUpdates : public BusTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void finds_data();
    void finds();
    void canCheckFollowsTheService();
    void mayDieWhileChecking();

private:
    std::unique_ptr<FakePackageKit> m_service;
    std::unique_ptr<PackageKitUpdates> m_updates;
};

void TestPackageKitUpdates::init()
{
    const PackageKitUpdates::Limits limits{.call = 5s, .question = 5s, .refresh = 5s};
    m_service = std::make_unique<FakePackageKit>(other());
    m_updates = std::make_unique<PackageKitUpdates>(vesk(), limits);
}

void TestPackageKitUpdates::cleanup()
{
    m_updates.reset();
    m_service->vanish();
    m_service.reset();
}

void TestPackageKitUpdates::finds_data()
{
    using Script = FakePackageKit::Script;
    const QStringList ours{u"vesk;0.1.0-1;amd64;installed"_s};
    const QStringList newer{u"bash;5.3;amd64;main"_s, u"vesk;0.2.0-1;amd64;main"_s};
    const QStringList others{u"bash;5.3;amd64;main"_s, u"vesk-doc;9;all;main"_s, u"rubbish"_s};
    QTest::addColumn<Script>("script");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("version");
    QTest::newRow("a newer one") << Script{ours, newer, {}} << Outcome::Available << u"0.2.0-1"_s;
    QTest::newRow("only others") << Script{ours, others, {}} << Outcome::UpToDate << u"0.1.0-1"_s;
    QTest::newRow("not installed as a package")
        << Script{{}, newer, {}} << Outcome::NotInstalled << QString();
    QTest::newRow("no network") << Script{ours, newer, u"RefreshCache"_s} << Outcome::Available
                                << u"0.2.0-1"_s;
    QTest::newRow("no right to refresh")
        << Script{ours, {}, u"RefreshCache"_s, Failure::Refuses} << Outcome::UpToDate << u"0.1.0-1"_s;
    QTest::newRow("the question fails")
        << Script{ours, newer, u"GetUpdates"_s} << Outcome::Failed << QString();
    QTest::newRow("hangs at the first question")
        << Script{ours, newer, u"Resolve"_s, Failure::Hangs} << Outcome::Failed << QString();
    QTest::newRow("vanishes in the middle")
        << Script{ours, newer, u"GetUpdates"_s, Failure::Vanishes} << Outcome::Failed << QString();
}

void TestPackageKitUpdates::finds()
{
    QFETCH(FakePackageKit::Script, script);
    QFETCH(Outcome, outcome);
    QFETCH(QString, version);
    if (script.failure == Failure::Hangs) {
        const PackageKitUpdates::Limits limits{.call = 5s, .question = 50ms, .refresh = 50ms};
        m_updates = std::make_unique<PackageKitUpdates>(vesk(), limits);
    }
    QSignalSpy finished(m_updates.get(), &Updates::checkFinished);
    m_service->setScript(script);
    m_service->appear();
    QTRY_VERIFY(m_updates->canCheckForUpdates());

    m_updates->checkForUpdates();
    QVERIFY(!m_updates->canCheckForUpdates());
    m_updates->checkForUpdates(); // Only one at a time: this does not start a second check.
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 20'000);
    const auto result = finished.first().first().value<Updates::Result>();
    QCOMPARE(result.outcome, outcome);
    QCOMPARE(result.version, version);
    if (script.failure == Failure::Hangs)
        QTRY_VERIFY(m_service->calls().contains(u"Cancel"));
    QCOMPARE(m_service->calls().count(u"Resolve"_s), 1);
    QTRY_COMPARE(m_updates->canCheckForUpdates(), script.failure != Failure::Vanishes);
    QCOMPARE(finished.size(), 1);
}

void TestPackageKitUpdates::canCheckFollowsTheService()
{
    QVERIFY(!m_updates->canCheckForUpdates());
    m_updates->checkForUpdates();
    QVERIFY(m_service->calls().isEmpty());

    m_service->appear();
    QTRY_VERIFY(m_updates->canCheckForUpdates());
    m_service->setOthersAreBusy(true);
    QTRY_VERIFY(!m_updates->canCheckForUpdates());
    m_service->setOthersAreBusy(false);
    QTRY_VERIFY(m_updates->canCheckForUpdates());
    m_service->vanish();
    QTRY_VERIFY(!m_updates->canCheckForUpdates());

    // Already busy when first seen.
    m_service->setOthersAreBusy(true);
    m_service->appear();
    m_updates = std::make_unique<PackageKitUpdates>(vesk(), PackageKitUpdates::Limits());
    QTest::qWait(200);
    QVERIFY(!m_updates->canCheckForUpdates());
}

void TestPackageKitUpdates::mayDieWhileChecking()
{
    m_service->setScript({.installed = {u"vesk;0.1.0;amd64;installed"_s},
                          .updates = {},
                          .failing = u"RefreshCache"_s,
                          .failure = Failure::Hangs});
    m_service->appear();
    QTRY_VERIFY(m_updates->canCheckForUpdates());
    m_updates->checkForUpdates();
    QTRY_VERIFY(m_service->calls().contains(u"RefreshCache"));
    m_updates.reset();
    // The pending transaction now ends, with nobody waiting for it.
    m_service->vanish();
    QTest::qWait(200);
}

QTEST_GUILESS_MAIN(TestPackageKitUpdates)

#include "tst_packagekitupdates.moc"
