// SPDX-License-Identifier: MIT
#include "app/notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace vesk {

void notifyUser(const QString &summary, const QString &body)
{
    constexpr int kDeadline = 1000; // milliseconds
    constexpr int kUsualTime = -1;
    const QString service = u"org.freedesktop.Notifications"_s;
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service, u"Notify"_s);
    const uint replacesNone = 0;
    call.setArguments({u"Vesk"_s, replacesNone, u"org.vesk.Vesk"_s, summary, body, QStringList(),
                       QVariantMap{{u"desktop-entry"_s, u"org.vesk.Vesk"_s}}, kUsualTime});
    QDBusConnection::sessionBus().call(call, QDBus::Block, kDeadline);
}

} // namespace vesk
