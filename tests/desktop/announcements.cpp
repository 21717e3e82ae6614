// SPDX-License-Identifier: MIT
#include "desktop/announcements.h"

using namespace Qt::StringLiterals;

namespace vesk {

Announcements::Announcements(const QString &busAddress)
    : m_bus(busAddress)
{
    m_bus.connection().connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                               SLOT(onStateChanged(QDBusMessage)));
    // Toolkits only send events that somebody has asked for.
    static_cast<void>(m_bus.ask({u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s},
                                u"org.a11y.atspi.Registry"_s, u"RegisterEvent"_s,
                                {u"object:state-changed:showing"_s}));
}

void Announcements::onStateChanged(const QDBusMessage &message)
{
    /// The AT-SPI role of a notification.
    constexpr uint kNotification = 101;
    const QVariantList arguments = message.arguments();
    if (arguments.size() < 2 || arguments.at(0) != u"showing"_s || arguments.at(1).toInt() != 1)
        return;
    const AccessibleBus::Object object{message.service(), message.path()};
    if (m_bus.ask(object, u"org.a11y.atspi.Accessible"_s, u"GetRole"_s).toUInt() == kNotification)
        m_heard.append(m_bus.nameOf(object));
}

} // namespace vesk
