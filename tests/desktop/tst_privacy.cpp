// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"
#include "virtualdesktop/files.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// The inodes of the process's sockets.
QSet<QString> socketsOf(qint64 process)
{
    QSet<QString> inodes;
    const QDir folder(u"/proc/%1/fd"_s.arg(process));
    for (const QString &name : folder.entryList(QDir::Files | QDir::System)) {
        char target[64] = {};
        const QByteArray path = QFile::encodeName(folder.filePath(name));
        static_cast<void>(::readlink(path.constData(), target, sizeof(target) - 1));
        const QString socket = QString::fromLatin1(target);
        if (socket.startsWith(u"socket:["_s))
            inodes.insert(socket.sliced(8).chopped(1));
    }
    return inodes;
}

} // namespace

/// Who can learn about a note: its user, and nobody else.
class TestPrivacy : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noteStaysBetweenVeskAndItsUser();
    void crashLeavesNoMemoryBehindHoweverVeskWasStarted();
    void otherUsersAreRefusedByTheBus();
};

/// Enable dumps for everything that the test starts, as on systems that write them.
void TestPrivacy::initTestCase()
{
    rlimit limit{};
    QCOMPARE(::getrlimit(RLIMIT_CORE, &limit), 0);
    limit.rlim_cur = limit.rlim_max;
    QCOMPARE(::setrlimit(RLIMIT_CORE, &limit), 0);
}

void TestPrivacy::noteStaysBetweenVeskAndItsUser()
{
    // With a trace, which users may send to others.
    m_desktop->setVariable(u"QT_LOGGING_RULES"_s, u"vesk.*.debug=true"_s);
    QVERIFY(m_vesk->quit());
    QVERIFY(startVesk());
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    tapShiftTwice();
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(
                              kBound, [this] { return m_desktop->notes().promptTexts().size() == 1; }));
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"add"_s, u"Return the ladder"_s}));
    togglePanel();
    const auto panel = m_desktop->windows().waitViewable(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
    m_desktop->keyboard().tap({XK_Control_L, XK_f}, kFinger);
    m_desktop->keyboard().type(u"ladder"_s);

    // Nothing goes over a network: every socket is local.
    const QSet<QString> sockets = socketsOf(m_vesk->pid());
    QVERIFY(!sockets.isEmpty());
    const QString own = QString::fromUtf8(contentsOf(u"/proc/net/unix"_s));
    for (const QString &inode : sockets) {
        const QRegularExpression line(u" %1( |$)"_s.arg(inode), QRegularExpression::MultilineOption);
        QVERIFY2(own.contains(line), qPrintable(u"Socket %1 is of another kind."_s.arg(inode)));
    }
    const QString folder = QFileInfo(m_desktop->notes().path()).path();
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        constexpr auto kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY2(!(QFile::permissions(folder + u'/' + name) & kOthers), qPrintable(name));
    }

    QVERIFY(m_vesk->quit());
    QCOMPARE(m_desktop->notes().texts(), (QStringList{m_lines.at(0), u"Return the ladder"_s}));
    QVERIFY2(m_vesk->errorOutput().contains(u"vesk.x11: hot key"_s), qPrintable(m_vesk->errorOutput()));
    for (const QString &word : {u"lemon"_s, u"Ghent"_s, u"ladder"_s, u"Mousepad"_s}) {
        QVERIFY2(!m_vesk->errorOutput().contains(word), qPrintable(m_vesk->errorOutput()));
        QVERIFY(!m_vesk->output().contains(word));
    }
}

void TestPrivacy::crashLeavesNoMemoryBehindHoweverVeskWasStarted()
{
    const auto isForbidden = [](qint64 process) {
        const QString folder = u"/proc/%1/"_s.arg(process);
        static const QRegularExpression limit(u"Max core file size +1 "_s);
        return QString::fromUtf8(contentsOf(folder + u"limits"_s)).contains(limit)
               && contentsOf(folder + u"coredump_filter"_s).trimmed().toULong(nullptr, 16) == 0;
    };
    // When started with the command.
    QVERIFY(isForbidden(m_vesk->pid()));

    // When started by the session bus, which runs the program behind the command.
    const QString program = QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(m_vesk->pid()));
    QVERIFY(m_vesk->quit());
    QVERIFY(!m_desktop
                 ->writeFile(u"data/dbus-1/services/org.vesk.Vesk.service"_s,
                             u"[D-BUS Service]\nName=org.vesk.Vesk\nExec=%1 --background\n"_s.arg(program))
                 .isEmpty());
    const auto askBus = [this](const QStringList &call) {
        const std::unique_ptr<ChildProcess> teller = m_desktop->run(
            u"dbus-send"_s, QStringList{u"--bus="_s + m_desktop->busAddress(), u"--print-reply=literal"_s,
                                        u"--dest=org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s}
                                + call);
        return teller && teller->waitForExit(kBound) ? teller->output() : QString();
    };
    askBus({u"org.freedesktop.DBus.ReloadConfig"_s});
    askBus({u"org.freedesktop.DBus.StartServiceByName"_s, u"string:org.vesk.Vesk"_s, u"uint32:0"_s});
    const QString process =
        askBus({u"org.freedesktop.DBus.GetConnectionUnixProcessID"_s, u"string:org.vesk.Vesk"_s});
    const qint64 started = process.simplified().section(u' ', -1).toLongLong();
    QVERIFY2(started > 0, qPrintable(process));
    QVERIFY(isForbidden(started));
}

void TestPrivacy::otherUsersAreRefusedByTheBus()
{
    const QStringList call{u"dbus-send"_s,      u"--bus="_s + m_desktop->busAddress(),
                           u"--print-reply"_s,  u"--dest=org.vesk.Vesk"_s,
                           u"/org/vesk/Vesk"_s, u"org.freedesktop.DBus.Peer.Ping"_s};
    QVERIFY(runToEnd(call.first(), call.mid(1)));
    if (::geteuid() != 0)
        QSKIP("Only root can be another user.");
    // Another user must be able to reach the socket, so that something else stops them.
    const QString socket = m_desktop->busAddress().section(u"path="_s, 1).section(u',', 0, 0);
    for (QString folder = QFileInfo(socket).path(); folder.size() > QDir::tempPath().size();
         folder = QFileInfo(folder).path())
        QFile::setPermissions(folder, QFile::permissions(folder) | QFile::ExeOther);
    QFile::setPermissions(socket, QFile::permissions(socket) | QFile::ReadOther | QFile::WriteOther);
    const std::unique_ptr<ChildProcess> other = m_desktop->run(
        u"setpriv"_s, QStringList{u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s} + call);
    QVERIFY(other && other->waitForExit(kBound));
    QCOMPARE(other->exitCode(), 1);
    QVERIFY2(!other->errorOutput().contains(u"Permission denied"_s), qPrintable(other->errorOutput()));
}

DESKTOP_TEST_MAIN(TestPrivacy)
#include "tst_privacy.moc"
