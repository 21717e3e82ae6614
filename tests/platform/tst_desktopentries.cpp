// SPDX-License-Identifier: MIT
#include "platform/freedesktop/coredumps.h"
#include "platform/freedesktop/desktopentries.h"
#include "virtualdesktop/files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Which application a window belongs to, according to what real applications set on their windows.
class TestDesktopEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void windowIsMatched_data();
    void windowIsMatched();
    void entryIsRead();
    void userFolderComesFirst();
    void command_data();
    void command();
    void launchedProgramKeepsItsOwnDumps();

private:
    void write(const QString &folder, const QString &name, const QByteArray &keys);

    QTemporaryDir m_folder;
    QString m_system;
    QString m_user;
};

void TestDesktopEntries::initTestCase()
{
    m_system = m_folder.filePath(u"system"_s);
    m_user = m_folder.filePath(u"user"_s);
    write(m_system, u"org.xfce.mousepad"_s, "Name=Mousepad\nExec=mousepad %U\n");
    write(m_system, u"chromium"_s, "Name=Chromium\nExec=/usr/bin/chromium %U\nStartupWMClass=chromium\n");
    write(m_system, u"firefox-esr"_s, "Name=Firefox ESR\nExec=firefox-esr %u\nStartupWMClass=firefox-esr\n");
    write(m_system, u"debian-xterm"_s, "Name=XTerm\nExec=xterm\nStartupWMClass=XTerm\n");
    write(m_system, u"xfce4-terminal"_s, "Name=Xfce Terminal\nExec=xfce4-terminal\n");
    write(m_system, u"libreoffice-writer"_s,
          "Name=Writer\nExec=libreoffice --writer\n"
          "StartupWMClass=libreoffice-writer\n");
    write(m_system, u"emacs"_s, "Name=Emacs\nExec=emacs %F\nStartupWMClass=Emacs\n");
    write(m_system, u"emacsclient"_s, "Name=Emacs (Client)\nExec=emacsclient\nStartupWMClass=Emacs\n");
    write(m_system, u"org.kde.kate"_s, "Name=Kate\nExec=kate -b %U\n");
    write(m_system, u"tool"_s, "Name=Tool\nExec=/opt/tool/bin/thetool --gui\n");
    write(m_system, u"vendor/inner"_s, "Name=Inner\nExec=inner\n");
}

void TestDesktopEntries::windowIsMatched_data()
{
    QTest::addColumn<QString>("gtkId");
    QTest::addColumn<QString>("instanceName");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("expected");
    QTest::newRow("GTK identifier") << u"org.xfce.mousepad"_s << u"mousepad"_s << u"Mousepad"_s
                                    << u"mousepad"_s << u"org.xfce.mousepad"_s;
    QTest::newRow("GTK identifier without a file")
        << u"org.libreoffice"_s << u"libreoffice"_s << u"libreoffice-writer"_s << u"soffice.bin"_s
        << u"libreoffice-writer"_s;
    QTest::newRow("class before an instance that is a folder")
        << QString() << u"chromium (/home/user/data)"_s << u"Chromium"_s << u"chromium"_s << u"chromium"_s;
    QTest::newRow("class before instance")
        << QString() << u"Navigator"_s << u"firefox-esr"_s << u"firefox-esr"_s << u"firefox-esr"_s;
    QTest::newRow("file named otherwise")
        << QString() << u"xterm"_s << u"XTerm"_s << u"xterm"_s << u"debian-xterm"_s;
    QTest::newRow("file named like the class") << QString() << u"xfce4-terminal"_s << u"Xfce4-terminal"_s
                                               << u"xfce4-terminal"_s << u"xfce4-terminal"_s;
    QTest::newRow("two of one class")
        << QString() << u"emacs"_s << u"Emacs"_s << u"emacs-gtk"_s << u"emacs"_s;
    QTest::newRow("last part of the name")
        << QString() << u"kate"_s << u"kate"_s << u"kate"_s << u"org.kde.kate"_s;
    QTest::newRow("executable") << QString() << u"main"_s << u"Main"_s << u"thetool"_s << u"tool"_s;
    QTest::newRow("unknown") << QString() << u"other"_s << u"Other"_s << u"other"_s << QString();
    QTest::newRow("a window that says nothing")
        << QString() << QString() << QString() << QString() << QString();
}

void TestDesktopEntries::windowIsMatched()
{
    QFETCH(const QString, gtkId);
    QFETCH(const QString, instanceName);
    QFETCH(const QString, className);
    QFETCH(const QString, executable);
    QFETCH(const QString, expected);
    const DesktopEntries entries({m_system});
    const DesktopEntry *entry = entries.match({.gtkApplicationId = gtkId,
                                               .instanceName = instanceName,
                                               .className = className,
                                               .executableName = executable});
    QCOMPARE(entry ? entry->id : QString(), expected);
}

void TestDesktopEntries::entryIsRead()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    write(m_user, u"names"_s,
          "Name=Text\nName[de]=Texte\nName[fr]=Textes\nIcon = text \nExec=x\n"
          "[Desktop Action new]\nName=New\nExec=y\n");
    write(m_user, u"gone"_s, "Name=Gone\nExec=x\nHidden=true\n");
    const DesktopEntries entries({m_user, m_system});
    QVERIFY(entries.find(u"names"_s));
    QCOMPARE(entries.find(u"names"_s)->name, u"Texte"_s);
    QCOMPARE(entries.find(u"names"_s)->icon, u"text"_s);
    QCOMPARE(entries.find(u"names"_s)->exec, u"x"_s);
    QVERIFY(entries.find(u"vendor-inner"_s));
    QVERIFY(!entries.find(u"gone"_s));
    QLocale::setDefault(QLocale::c());
}

void TestDesktopEntries::userFolderComesFirst()
{
    write(m_user, u"chromium"_s, "Name=My Chromium\nExec=chromium\n");
    QCOMPARE(DesktopEntries({m_user, m_system}).find(u"chromium"_s)->name, u"My Chromium"_s);
}

void TestDesktopEntries::command_data()
{
    QTest::addColumn<QString>("exec");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("field codes") << u"edit %U --new %f"_s << QStringList{u"edit"_s, u"--new"_s};
    QTest::newRow("quotes and percent")
        << u"\"/opt/my app/run\" 50%%"_s << QStringList{u"/opt/my app/run"_s, u"50%"_s};
    QTest::newRow("nothing") << QString() << QStringList();
}

void TestDesktopEntries::command()
{
    QFETCH(const QString, exec);
    QFETCH(const QStringList, expected);
    DesktopEntry entry;
    entry.exec = exec;
    QCOMPARE(entry.command(), expected);
}

void TestDesktopEntries::write(const QString &folder, const QString &name, const QByteArray &keys)
{
    QVERIFY(writeFile(folder + u'/' + name + u".desktop"_s,
                      "# A comment first\n[Desktop Entry]\nType=Application\n" + keys));
}

/// The protection of this process against core dumps must not extend to a browser that it starts.
void TestDesktopEntries::launchedProgramKeepsItsOwnDumps()
{
    const QString file = m_folder.filePath(u"dumps"_s);
    const QString script = m_folder.filePath(u"script"_s);
    QVERIFY(writeFile(script, "grep core /proc/self/limits > " + QFile::encodeName(file)
                                  + "\ncat /proc/self/coredump_filter >> " + QFile::encodeName(file) + '\n'));
    write(m_user, u"dumps"_s, "Name=Dumps\nExec=sh " + QFile::encodeName(script) + '\n');
    const DesktopEntries entries({m_user});
    const auto dumpsOfLaunched = [&] {
        QFile::remove(file);
        const bool isWritten =
            entries.launch(u"dumps"_s) && QTest::qWaitFor([&] { return contentsOf(file).count('\n') == 2; });
        return isWritten ? contentsOf(file) : QByteArray();
    };
    const QByteArray before = dumpsOfLaunched();
    QVERIFY(!before.isEmpty());
    forbidCoreDumps();
    QCOMPARE(contentsOf(u"/proc/self/coredump_filter"_s).trimmed().toULong(nullptr, 16), 0UL);
    QCOMPARE(dumpsOfLaunched(), before);
}

QTEST_GUILESS_MAIN(TestDesktopEntries)

#include "tst_desktopentries.moc"
