// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/files.h"

#include <QImage>
#include <QProcess>
#include <QSettings>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Vesk as installed, started in the ways in which desktops start it.
class TestInstallation : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sessionStartsItInTheBackground();
    void menuShowsIt();
    void busStartsIt();
    void iconsAreThere();

private:
    /// The location of a path of the installed system.
    [[nodiscard]] QString placed(const QString &path) const { return m_folder.path() + path; }
    /// Starts the program of a desktop entry with the entry's command line.
    [[nodiscard]] std::unique_ptr<ChildProcess> startEntry(const QString &path);

    QTemporaryDir m_folder;
};

void TestInstallation::initTestCase()
{
    QProcess install;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DESTDIR"_s, m_folder.path());
    install.setProcessEnvironment(environment);
    install.start(QStringLiteral(VESK_CMAKE), {u"--install"_s, QStringLiteral(VESK_BUILD)});
    QVERIFY(install.waitForFinished(60'000));
    QVERIFY2(install.exitCode() == 0, install.readAllStandardError().constData());
}

std::unique_ptr<ChildProcess> TestInstallation::startEntry(const QString &path)
{
    const QSettings entry(placed(path), QSettings::IniFormat);
    QStringList words = entry.value(u"Desktop Entry/Exec"_s).toString().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty() || entry.value(u"Desktop Entry/Icon"_s) != u"org.vesk.Vesk"_s)
        return nullptr;
    const QString program = words.takeFirst();
    return m_desktop->run(placed(QDir::isAbsolutePath(program) ? program : u"/usr/bin/"_s + program), words);
}

void TestInstallation::sessionStartsItInTheBackground()
{
    const std::unique_ptr<ChildProcess> vesk =
        startEntry(QStringLiteral(VESK_SYSCONFDIR "/xdg/autostart/org.vesk.Vesk.desktop"));
    QVERIFY(vesk);
    QVERIFY2(
        m_desktop->display().waitUntil(kBound, [&] { return m_desktop->keyboard().isHotKeyTaken(XK_t); }),
        qPrintable(vesk->errorOutput()));
    VERIFY_ON(*m_desktop, !m_desktop->windows().findViewable(kPanel));
    m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    QVERIFY(vesk->quit());
}

void TestInstallation::menuShowsIt()
{
    const std::unique_ptr<ChildProcess> vesk =
        startEntry(QStringLiteral(VESK_DATADIR "/applications/org.vesk.Vesk.desktop"));
    QVERIFY(vesk);
    const std::optional<Window> panel = m_desktop->windows().waitViewable(kPanel, kBound);
    QVERIFY2(panel, qPrintable(vesk->errorOutput()));
    QCOMPARE(panel->pid, vesk->pid());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
}

void TestInstallation::busStartsIt()
{
    QString text = QString::fromUtf8(
        contentsOf(placed(QStringLiteral(VESK_DATADIR "/dbus-1/services/org.vesk.Vesk.service"))));
    QVERIFY(!text.isEmpty());
    // Only the location differs from the one that it was made for.
    text.replace(u"Exec="_s, u"Exec="_s + m_folder.path());
    QVERIFY(!m_desktop->writeFile(u"data/dbus-1/services/org.vesk.Vesk.service"_s, text).isEmpty());
    QVERIFY(runToEnd(u"dbus-send"_s, {u"--session"_s, u"--print-reply"_s, u"--dest=org.vesk.Vesk"_s,
                                      u"/org/vesk/Vesk"_s, u"org.vesk.Vesk.Write"_s}));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
}

void TestInstallation::iconsAreThere()
{
    const QString folder = placed(QStringLiteral(VESK_DATADIR "/icons/hicolor/"));
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QImage icon(folder + u"%1x%1/apps/org.vesk.Vesk.png"_s.arg(size));
        QCOMPARE(icon.size(), QSize(size, size));
        // A tile with something on it, not an empty or plain picture.
        QVERIFY(icon.pixelColor(0, 0).alpha() < 64);
        QVERIFY(icon.pixelColor(size / 2, size - size / 6).blue() > 128);
    }
    QVERIFY(QFile::exists(folder + u"scalable/apps/org.vesk.Vesk.svg"_s));
    QVERIFY(QFile::exists(folder + u"symbolic/apps/org.vesk.Vesk-symbolic.svg"_s));
}

DESKTOP_TEST_MAIN(TestInstallation)
#include "tst_installation.moc"
