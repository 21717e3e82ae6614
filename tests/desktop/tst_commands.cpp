// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/files.h"
#include "virtualdesktop/texteditor.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

const auto kName = u"org.vesk.Vesk"_s;

/// Each method in a description of the interface, with its arguments, sorted by name.
QStringList methodsOf(const QString &description)
{
    static const QRegularExpression interface(u"<interface name=\"org.vesk.Vesk\">(.*?)</interface>"_s,
                                              QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression method(u"<method name=\"(\\w+)\"(?:/>|>(.*?)</method>)"_s,
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression type(u" type=\"(\\w+)\""_s);
    QStringList methods;
    QRegularExpressionMatchIterator found = method.globalMatch(interface.match(description).captured(1));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        methods.append(match.captured(1) + u' ' + type.match(match.captured(2)).captured(1));
    }
    std::ranges::sort(methods);
    return methods;
}

} // namespace

/// The command line with the real program and a separate bus.
class TestCommands : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void addsAndListsWithoutARunningVesk();
    void addsThroughTheRunningVesk();
    void addsTwoAtOnceWithoutARunningVesk();
    void refusesInvalidTexts();
    void refusesTooLongATextOverTheBus();
    void missingStoreIsNotCreatedAnew();
    void anotherSessionHasTheNotes();
    void startsInTheBackgroundAndInFront();
    void commandsStartVeskAndEndIt();
    void entryActionsDoWhatTheySay();
    void capturesWithoutAKey();
    void saysWhatIsMissing();
    void interfaceIsAsDescribed();

private:
    struct Outcome
    {
        int code = -1;
        QString output;
        QString errors;
    };

    /// Runs `vesk` in a shell, followed by `line`.
    Outcome vesk(const QString &line) { return shell(u"\"$VESK\" "_s + line); }
    Outcome shell(const QString &line);
    /// The output of a command, for a failing test's message.
    static QString told(const Outcome &outcome) { return outcome.output + outcome.errors; }
    [[nodiscard]] bool isOnTheBus();
};

void TestCommands::cleanup()
{
    QDBusConnection::disconnectFromBus(u"vesk-test-commands"_s);
    VeskTest::cleanup();
}

TestCommands::Outcome TestCommands::shell(const QString &line)
{
    const QString assignment = u"VESK='%1'; "_s.arg(VirtualDesktop::veskProgram());
    const std::unique_ptr<ChildProcess> process = m_desktop->run(u"sh"_s, {u"-c"_s, assignment + line});
    if (!process || !process->waitForExit(2 * kBound))
        return {};
    return {.code = process->exitCode(), .output = process->output(), .errors = process->errorOutput()};
}

bool TestCommands::isOnTheBus()
{
    QDBusConnection bus = QDBusConnection::connectToBus(m_desktop->busAddress(), u"vesk-test-commands"_s);
    return bus.interface()->isServiceRegistered(kName);
}

void TestCommands::addsAndListsWithoutARunningVesk()
{
    Outcome outcome = vesk(u"list"_s);
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));
    QVERIFY2(!QFile::exists(m_desktop->notes().path()), "Reading has made a store");

    outcome = vesk(u"add 'buy milk'"_s);
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));
    QCOMPARE(shell(u"printf '\\n two\\nlines \\n\\n' | \"$VESK\" add -"_s).code, 0);
    QCOMPARE(m_desktop->notes().texts(), (QStringList{u"buy milk"_s, u"two\nlines"_s}));
    outcome = vesk(u"list"_s);
    QVERIFY2(outcome.output.contains(u"\ttwo\n") && outcome.output.endsWith(u"\tbuy milk\n"),
             qPrintable(told(outcome)));
    QVERIFY(!isOnTheBus());
}

void TestCommands::addsThroughTheRunningVesk()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    QVERIFY(running);
    // Many at once: each note is on the disk when its command ends, and one writer has them all in memory.
    const Outcome outcome =
        shell(u"for i in 1 2 3 4 5; do \"$VESK\" add \"note $i\" || exit 1 & done; wait"_s);
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));
    QCOMPARE(m_desktop->notes().texts().size(), 5);
    QCOMPARE(vesk(u"list"_s).output.count(u'\n'), 5);
    QVERIFY(running->quit());
    QCOMPARE(m_desktop->notes().texts().size(), 5);
}

void TestCommands::addsTwoAtOnceWithoutARunningVesk()
{
    constexpr int kRounds = 5;
    const Outcome outcome =
        shell(u"for i in $(seq %1); do \"$VESK\" add \"a $i\" & first=$!; "
              "\"$VESK\" add \"b $i\" || exit 1; wait $first || exit 1; done"_s.arg(kRounds));
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));
    QCOMPARE(m_desktop->notes().texts().size(), 2 * kRounds);
}

/// The command line has a limit of its own, lower than the bus's.
void TestCommands::refusesTooLongATextOverTheBus()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    QVERIFY(running && isOnTheBus());
    const auto add = [](qsizetype bytes) {
        QDBusMessage call = QDBusMessage::createMethodCall(kName, u"/org/vesk/Vesk"_s, kName, u"AddNote"_s);
        // Two bytes each in UTF-8.
        call << QString(bytes / 2, u'ä');
        return QDBusConnection(u"vesk-test-commands"_s).call(call);
    };
    constexpr qsizetype kLimit = qsizetype{16} << 20;
    QCOMPARE(QDBusError(add(kLimit + 2)).type(), QDBusError::LimitsExceeded);
    QVERIFY(m_desktop->notes().texts().isEmpty());
    QCOMPARE(add(kLimit).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(m_desktop->notes().texts().size(), 1);
}

void TestCommands::missingStoreIsNotCreatedAnew()
{
    QCOMPARE(vesk(u"add kept"_s).code, 0);
    const QString store = m_desktop->notes().path();
    const QString copy = QFileInfo(store).path() + u"/Notes.copy"_s;
    QVERIFY(QFile::rename(store, copy));
    Outcome outcome;
    for (const QString &line : {u"list"_s, u"add more"_s}) {
        outcome = vesk(line);
        QVERIFY2(outcome.code == 1 && outcome.errors.contains(copy), qPrintable(told(outcome)));
    }
    QVERIFY(!QFile::exists(store));
    // The last line printed can be run as it is.
    const QStringList lines = outcome.errors.trimmed().split(u'\n');
    outcome = shell(lines.constLast());
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));
    QCOMPARE(vesk(u"add more"_s).code, 0);
    QCOMPARE(m_desktop->notes().texts(), (QStringList{u"kept"_s, u"more"_s}));
}

void TestCommands::anotherSessionHasTheNotes()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    QVERIFY(running);
    QCOMPARE(vesk(u"add here"_s).code, 0);
    const std::unique_ptr<BusDaemon> bus = BusDaemon::start();
    QVERIFY(bus);
    const QString there = u"export DBUS_SESSION_BUS_ADDRESS='%1'; \"$VESK\" "_s.arg(bus->address());
    const QString holder = u"process %1 on %2"_s.arg(running->pid()).arg(QSysInfo::machineHostName());
    const QByteArray before = contentsOf(m_desktop->notes().path());
    for (const QString &line : {u"add there"_s, u"--background"_s, u"toggle"_s}) {
        const Outcome outcome = shell(there + line);
        QVERIFY2(outcome.code == 1 && outcome.errors.contains(holder)
                     && outcome.errors.contains(u"another session"_s),
                 qPrintable(line + u": "_s + told(outcome)));
    }
    QCOMPARE(contentsOf(m_desktop->notes().path()), before);
    const Outcome list = shell(there + u"list"_s);
    QVERIFY2(list.code == 0 && list.output.endsWith(u"\there\n"), qPrintable(told(list)));
    QCOMPARE(vesk(u"add 'here again'"_s).code, 0);
    QVERIFY(running->quit());
    QCOMPARE(shell(there + u"add there"_s).code, 0);
    QCOMPARE(m_desktop->notes().texts(), (QStringList{u"here"_s, u"here again"_s, u"there"_s}));
}

void TestCommands::refusesInvalidTexts()
{
    QString long17MiB = u"head -c 17825792 /dev/zero | tr '\\0' x | \"$VESK\" add -"_s;
    const std::pair<QString, int> commands[] = {
        {u"\"$VESK\" add '  '"_s, 1},
        {u"\"$VESK\" add - </dev/null"_s, 1},
        {u"printf '\\377\\376a' | \"$VESK\" add -"_s, 1},
        {u"printf 'a\\0b' | \"$VESK\" add -"_s, 1},
        {u"printf 'cut \\303' | \"$VESK\" add -"_s, 1},
        {long17MiB, 1},
        {u"\"$VESK\" tggle"_s, 2},
        {u"\"$VESK\" access maybe"_s, 2},
    };
    for (const auto &[command, code] : commands) {
        const Outcome outcome = shell(command);
        QVERIFY2(outcome.code == code, qPrintable(u"%1: %2"_s.arg(command).arg(outcome.code)));
        QVERIFY2(!outcome.errors.isEmpty() && outcome.output.isEmpty(), qPrintable(command));
    }
    QVERIFY(!QFile::exists(m_desktop->notes().path()));
}

void TestCommands::startsInTheBackgroundAndInFront()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    QVERIFY(running);
    QCOMPARE(vesk(u"--background"_s).code, 0);
    VERIFY_ON(*m_desktop, !m_desktop->windows().findViewable(kPanel));
    QCOMPARE(vesk(QString()).code, 0);
    const std::optional<Window> panel = m_desktop->windows().waitViewable(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    QCOMPARE(panel->pid, running->pid());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
}

void TestCommands::commandsStartVeskAndEndIt()
{
    Outcome outcome = vesk(u"quit"_s);
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));

    // The pipe would block the shell if the Vesk that was started kept the terminal.
    outcome = shell(u"\"$VESK\" toggle 2>&1 | cat"_s);
    QVERIFY2(outcome.code == 0 && told(outcome).isEmpty(), qPrintable(told(outcome)));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    QCOMPARE(vesk(u"toggle"_s).code, 0);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));

    QCOMPARE(vesk(u"quit"_s).code, 0);
    QVERIFY(!isOnTheBus());
    QVERIFY(!m_desktop->keyboard().isHotKeyTaken(XK_n));
}

void TestCommands::entryActionsDoWhatTheySay()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    QVERIFY(running && isOnTheBus());
    const auto choose = [](const QString &action) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            kName, u"/org/vesk/Vesk"_s, u"org.freedesktop.Application"_s, u"ActivateAction"_s);
        call << action << QVariantList() << QVariantMap();
        return QDBusConnection(u"vesk-test-commands"_s).call(call).type() == QDBusMessage::ReplyMessage;
    };
    for (const auto &[action, title] :
         {std::pair(u"new-note"_s, kPanel), std::pair(u"quick-note"_s, kQuickNote)}) {
        QVERIFY(choose(action));
        const std::optional<Window> window = m_desktop->windows().waitViewable(title, kBound);
        VERIFY_ON(*m_desktop, window);
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*window, kBound));
    }
    // The command closes it and opens it again.
    QCOMPARE(vesk(u"quick-note"_s).code, 0);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kQuickNote, kBound));
}

void TestCommands::capturesWithoutAKey()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    const std::unique_ptr<TextEditor> editor = TextEditor::open(*m_desktop, {u"first"_s, u"second"_s});
    QVERIFY(running && editor);
    VERIFY_ON(*m_desktop, editor->selectLine(1));
    QCOMPARE(vesk(u"capture"_s).code, 0);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{u"second"_s});

    QTest::qWait(int(kCaptureGate.count()));
    QCOMPARE(vesk(u"capture --append"_s).code, 0);
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        const QStringList texts = m_desktop->notes().texts();
        return texts.size() == 1 && texts.first().count(u"second"_s) == 2;
    }));
}

void TestCommands::saysWhatIsMissing()
{
    Outcome outcome = shell(u"DISPLAY= \"$VESK\" toggle"_s);
    QVERIFY2(outcome.code == 1 && outcome.errors.contains(u"X11"), qPrintable(told(outcome)));
    outcome = shell(u"DISPLAY= WAYLAND_DISPLAY=wayland-0 \"$VESK\""_s);
    QVERIFY2(outcome.code == 1 && outcome.errors.contains(u"Wayland"), qPrintable(told(outcome)));
    outcome = shell(u"DISPLAY= \"$VESK\" add 'no screen needed'"_s);
    QVERIFY2(outcome.code == 0, qPrintable(told(outcome)));
    outcome = shell(u"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere \"$VESK\" add lost"_s);
    QVERIFY2(outcome.code == 1 && outcome.errors.contains(u"bus"), qPrintable(told(outcome)));
    outcome = shell(u"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere \"$VESK\" list"_s);
    QVERIFY2(outcome.code == 0 && outcome.output.endsWith(u"\tno screen needed\n"),
             qPrintable(told(outcome)));

    QVERIFY(m_desktop->notes().raiseSchemaVersion());
    for (const QString &command : {u"list"_s, u"add more"_s}) {
        outcome = vesk(command);
        QVERIFY2(outcome.code == 1 && outcome.errors.contains(u"newer Vesk"), qPrintable(told(outcome)));
    }
}

void TestCommands::interfaceIsAsDescribed()
{
    const std::unique_ptr<ChildProcess> running = m_desktop->startVesk();
    QVERIFY(running && isOnTheBus());
    const QStringList described = methodsOf(QString::fromUtf8(contentsOf(QStringLiteral(VESK_INTERFACE))));

    const QDBusConnection bus(u"vesk-test-commands"_s);
    const QDBusMessage question = QDBusMessage::createMethodCall(
        kName, u"/org/vesk/Vesk"_s, u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s);
    const QDBusMessage answer = bus.call(question);
    QCOMPARE(methodsOf(answer.arguments().value(0).toString()), described);
    QVERIFY(described.contains(u"AddNote s"_s));
}

DESKTOP_TEST_MAIN(TestCommands)
#include "tst_commands.moc"
