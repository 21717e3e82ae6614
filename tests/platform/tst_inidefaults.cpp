// SPDX-License-Identifier: MIT
#include "platform/freedesktop/consent.h"
#include "platform/freedesktop/inidefaults.h"

#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The user's choices across runs, and between two processes at the same time.
class TestIniDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choiceOfAnotherProcessArrives();
    void unwritableFileIsReported();
    void numbersAreKept();
    void isForItsUserOnly_data();
    void isForItsUserOnly();
};

void TestIniDefaults::choiceOfAnotherProcessArrives()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Vesk/Vesk.conf"_s);
    IniDefaults here(path);
    Consent consent(here);
    QSignalSpy changes(&consent, &Consent::changed);
    IniDefaults there(path);
    for (const bool isGiven : {true, false}) {
        changes.clear();
        Consent(there).setGiven(isGiven);
        QVERIFY(changes.wait());
        QCOMPARE(consent.isGiven(), isGiven);
    }
}

void TestIniDefaults::unwritableFileIsReported()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Vesk.conf"_s);
    QVERIFY(QDir().mkpath(path)); // A folder stands where the file should be.
    IniDefaults defaults(path);
    defaults.setBool(true, u"hasSeenGuide"_s);
    QVERIFY(defaults.boolForKey(u"hasSeenGuide"_s));
    QVERIFY(!defaults.isWritable());
}

void TestIniDefaults::numbersAreKept()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Vesk.conf"_s);
    const auto number = u"panelHeight"_s;
    const auto choice = u"hasSeenGuide"_s;
    IniDefaults here(path);
    QVERIFY(!here.intForKey(number));
    here.setInt(731, number);
    here.setBool(true, choice);
    IniDefaults there(path);
    QCOMPARE(there.intForKey(number), 731);
    QVERIFY(there.boolForKey(choice));
    // A value that is not a number reads as none; a number from another process is reported, one's own is
    // not.
    QVERIFY(!there.intForKey(choice));
    QSignalSpy changes(&here, &IniDefaults::changedOutside);
    there.setInt(502, number);
    QVERIFY(changes.wait());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(here.intForKey(number), 502);
}

void TestIniDefaults::isForItsUserOnly_data()
{
    QTest::addColumn<uint>("mask");
    QTest::newRow("permissive") << 0U;
    QTest::newRow("usual") << 022U;
    QTest::newRow("everything taken away") << 0777U;
}

void TestIniDefaults::isForItsUserOnly()
{
    QFETCH(const uint, mask);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Vesk/Vesk.conf"_s);
    const mode_t before = ::umask(mask);
    const auto restore = qScopeGuard([before] { ::umask(before); });
    IniDefaults defaults(path);
    for (const bool value : {true, false}) {
        defaults.setBool(value, u"hasSeenGuide"_s);
        QVERIFY(defaults.isWritable());
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0600});
        QCOMPARE(::stat(QFile::encodeName(folder.filePath(u"Vesk"_s)).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0700});
    }
}

QTEST_GUILESS_MAIN(TestIniDefaults)

#include "tst_inidefaults.moc"
