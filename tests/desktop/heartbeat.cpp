// SPDX-License-Identifier: MIT
#include "desktop/heartbeat.h"

#include <QDBusConnection>
#include <QDBusMessage>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

Heartbeat::Heartbeat(const QString &busAddress)
    : m_thread([this, busAddress] { run(busAddress); })
{
}

Heartbeat::~Heartbeat()
{
    m_isEnding = true;
    m_thread.join();
}

void Heartbeat::run(const QString &busAddress)
{
    constexpr auto kPause = 5ms;
    constexpr int kBound = 20'000; // ms
    const auto name = u"vesk-test-heartbeat"_s;
    QDBusConnection bus = QDBusConnection::connectToBus(busAddress, name);
    while (!m_isEnding) {
        // This answer comes from the thread that the object lives in.
        const QDBusMessage question =
            QDBusMessage::createMethodCall(u"org.vesk.Vesk"_s, u"/org/vesk/Vesk"_s,
                                           u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s);
        if (bus.call(question, QDBus::Block, kBound).type() == QDBusMessage::ReplyMessage)
            ++m_answers;
        std::this_thread::sleep_for(kPause);
    }
    QDBusConnection::disconnectFromBus(name);
}

} // namespace vesk
