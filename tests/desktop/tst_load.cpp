// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <algorithm>
#include <thread>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Fifty notes a second by command, while the panel is open and in use. VESK_LOAD_SECONDS asks for more.
class TestLoad : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void scriptAddsWhileTheUserWrites();

private:
    /// Writes a note in the panel.
    void write(const QString &text);
};

void TestLoad::write(const QString &text)
{
    m_desktop->keyboard().type(text);
    m_desktop->keyboard().tap({XK_Return}, kFinger);
}

void TestLoad::scriptAddsWhileTheUserWrites()
{
    constexpr int kUsualSeconds = 5;
    constexpr int kPerSecond = 50;
    const int asked = qEnvironmentVariableIntValue("VESK_LOAD_SECONDS");
    const int seconds = asked > 0 ? asked : kUsualSeconds;
    QVERIFY(startVesk());
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"write"_s}));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));

    const QDBusConnection bus = QDBusConnection::connectToBus(m_desktop->busAddress(), u"load"_s);
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.vesk.Vesk"_s, u"/org/vesk/Vesk"_s,
                                                       u"org.vesk.Vesk"_s, u"AddNote"_s);
    call.setAutoStartService(false);
    QStringList added;
    QStringList written;
    QList<QDBusPendingCall> answers;
    auto next = std::chrono::steady_clock::now();
    for (int second = 0; second < seconds; ++second) {
        for (int i = 0; i < kPerSecond; ++i) {
            added.append(u"Note %1"_s.arg(added.size()));
            call.setArguments({added.constLast()});
            answers.append(bus.asyncCall(call));
            // The script does not wait for whom it loads.
            std::this_thread::sleep_until(next += std::chrono::milliseconds(1000 / kPerSecond));
        }
        written.append(u"written %1"_s.arg(second));
        write(written.constLast());
        // The panel answers, whatever else it is told.
        VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
            return m_desktop->notes().texts().contains(written.constLast());
        }));
    }
    for (QDBusPendingCall &each : answers) {
        each.waitForFinished();
        QVERIFY2(!each.isError(), qPrintable(each.error().message()));
    }
    // All there, and once, those of the script in its order.
    QStringList found = m_desktop->notes().texts();
    QStringList foundWritten;
    std::ranges::copy_if(found, std::back_inserter(foundWritten),
                         [](const QString &each) { return each.startsWith(u"written"_s); });
    found.removeIf([](const QString &each) { return each.startsWith(u"written"_s); });
    QCOMPARE(found, added);
    QCOMPARE(foundWritten, written);
    QCOMPARE(m_desktop->notes().integrity(), u"ok"_s);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    QDBusConnection::disconnectFromBus(u"load"_s);
}

DESKTOP_TEST_MAIN(TestLoad)
#include "tst_load.moc"
