// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/files.h"

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

constexpr auto kFatal = "Could not open the notes store: ";

} // namespace

/// How Vesk ends when its store cannot be opened.
class TestStartAndStop : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void unusableStoreIsSaidAndLeftAlone_data();
    void unusableStoreIsSaidAndLeftAlone();
};

void TestStartAndStop::unusableStoreIsSaidAndLeftAlone_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a folder stands in its place") << u"folder"_s;
    QTest::newRow("written by a later version") << u"later"_s;
    QTest::newRow("not a database") << u"rubbish"_s;
}

void TestStartAndStop::unusableStoreIsSaidAndLeftAlone()
{
    QFETCH(QString, kind);
    const QString store = m_desktop->notes().path();
    QVERIFY(QDir().mkpath(QFileInfo(store).path()));
    if (kind == u"folder") {
        QVERIFY(QDir().mkpath(store + u"/kept"_s));
    } else if (kind == u"rubbish") {
        QVERIFY(!m_desktop
                     ->writeFile(u"data/Vesk/Notes.store"_s,
                                 u"No database, but dear to someone.\n"_s.repeated(99))
                     .isEmpty());
    } else {
        m_vesk = m_desktop->startVesk();
        QVERIFY(m_vesk && m_vesk->quit());
        QVERIFY(m_desktop->notes().raiseSchemaVersion());
    }
    const QByteArray before = contentsOf(store);

    m_vesk = m_desktop->run(VirtualDesktop::veskProgram());
    QVERIFY(m_vesk);
    const std::optional<Window> window = m_desktop->windows().waitViewableOf(m_vesk->pid(), {}, kBound);
    QVERIFY2(window, qPrintable(m_vesk->errorOutput()));
    QVERIFY2(m_vesk->errorOutput().contains(QLatin1StringView(kFatal)), qPrintable(m_vesk->errorOutput()));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*window, kBound));
    m_desktop->keyboard().tap({XK_Escape});
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_vesk->exitCode(), 1);

    QCOMPARE(contentsOf(store), before);
    QCOMPARE(QFileInfo::exists(store + u"/kept"_s), kind == u"folder");
}

DESKTOP_TEST_MAIN(TestStartAndStop)
#include "tst_startandstop.moc"
