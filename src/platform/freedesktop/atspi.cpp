// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspi.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kText = QStringLiteral("org.a11y.atspi.Text");
const QString kRootPath = QStringLiteral("/org/a11y/atspi/accessible/root");

AtSpiReference referenceOf(const AccessibleElement &element)
{
    return {.service = element.address.section(u' ', 0, 0), .path = element.address.section(u' ', 1)};
}

AccessibleElement elementOf(qint64 processIdentifier, const AtSpiReference &reference)
{
    return {.processIdentifier = processIdentifier, .address = reference.service + u' ' + reference.path};
}

AtSpiReference readReference(const QDBusArgument &argument)
{
    QString service;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> service >> path;
    argument.endStructure();
    return {.service = service, .path = path.path()};
}

QList<AtSpiReference> readReferences(const std::optional<QVariantList> &reply)
{
    QList<AtSpiReference> references;
    if (!reply || reply->isEmpty() || !reply->first().canConvert<QDBusArgument>())
        return references;
    const auto argument = reply->first().value<QDBusArgument>();
    if (argument.currentSignature() != "a(so)"_L1)
        return references;
    argument.beginArray();
    while (!argument.atEnd())
        references.append(readReference(argument));
    argument.endArray();
    return references;
}

QString readString(const std::optional<QVariantList> &reply)
{
    return reply && !reply->isEmpty() ? reply->first().toString() : QString();
}

/// What Collection.GetMatches looks for: texts that have the keyboard.
struct MatchRule
{
    QList<int> states;
    QStringList interfaces;
};

QDBusArgument &operator<<(QDBusArgument &argument, const MatchRule &rule)
{
    constexpr int kMatchAll = 1;
    constexpr int kMatchAny = 2;
    const QMap<QString, QString> noAttributes;
    const QList<int> noRoles;
    argument.beginStructure();
    argument << rule.states << kMatchAll << noAttributes << kMatchAny << noRoles << kMatchAny
             << rule.interfaces << kMatchAll << false;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, MatchRule &rule)
{
    // Rules are only ever sent; Qt wants both directions.
    Q_UNUSED(rule)
    return argument;
}

} // namespace
} // namespace vesk

Q_DECLARE_METATYPE(vesk::MatchRule)

namespace vesk {

using StringMap = QMap<QString, QString>;

AtSpi::AtSpi()
{
    qDBusRegisterMetaType<QList<int>>();
    qDBusRegisterMetaType<StringMap>();
    qDBusRegisterMetaType<MatchRule>();
    connect(&m_bus, &AtSpiBus::focusEvent, this, &AtSpi::onFocusEvent);
}

void AtSpi::stop()
{
    m_bus.stop();
    m_focused.clear();
    m_processes.clear();
}

QCoro::Task<std::optional<AccessibleElement>> AtSpi::focusedElement(qint64 processIdentifier)
{
    const std::optional<QString> service = co_await serviceOf(processIdentifier);
    if (!service)
        co_return std::nullopt;
    const auto tracked = m_focused.constFind(*service);
    if (tracked != m_focused.cend())
        co_return elementOf(processIdentifier, *tracked);
    const std::optional<AtSpiReference> found = co_await searchFocus(*service);
    if (!found)
        co_return std::nullopt;
    co_return elementOf(processIdentifier, *found);
}

QCoro::Task<std::optional<AccessibleElement>> AtSpi::parent(AccessibleElement element)
{
    QVariantList arguments;
    arguments.append(kAccessible);
    arguments.append(u"Parent"_s);
    const std::optional<QVariantList> reply =
        co_await m_bus.call(referenceOf(element), u"org.freedesktop.DBus.Properties"_s, u"Get"_s, arguments);
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    const QVariant value = reply->first().value<QDBusVariant>().variant();
    if (!value.canConvert<QDBusArgument>())
        co_return std::nullopt;
    const AtSpiReference reference = readReference(value.value<QDBusArgument>());
    if (reference.isNull())
        co_return std::nullopt;
    co_return elementOf(element.processIdentifier, reference);
}

QCoro::Task<std::optional<QString>> AtSpi::role(AccessibleElement element)
{
    const std::optional<QVariantList> reply =
        co_await m_bus.call(referenceOf(element), kAccessible, u"GetRoleName"_s);
    if (!reply)
        co_return std::nullopt;
    co_return readString(reply);
}

QCoro::Task<std::optional<QString>> AtSpi::selectedText(AccessibleElement element)
{
    const AtSpiReference object = referenceOf(element);
    const std::optional<QVariantList> count = co_await m_bus.call(object, kText, u"GetNSelections"_s);
    if (!count || count->isEmpty())
        co_return std::nullopt;
    const int selections = count->first().toInt();
    QString text;
    for (int index = 0; index < selections; ++index) {
        QVariantList which;
        which.append(index);
        const std::optional<QVariantList> range =
            co_await m_bus.call(object, kText, u"GetSelection"_s, which);
        if (!range || range->size() < 2)
            co_return std::nullopt;
        const std::optional<QVariantList> part = co_await m_bus.call(object, kText, u"GetText"_s, *range);
        if (!part)
            co_return std::nullopt;
        text += readString(part);
    }
    co_return text;
}

QCoro::Task<std::optional<QString>> AtSpi::documentUrl(AccessibleElement element)
{
    // Firefox knows its page's address by the one name, Chromium by the other.
    const QString names[] = {u"DocURL"_s, u"URI"_s};
    for (const QString &name : names) {
        QVariantList arguments;
        arguments.append(name);
        const std::optional<QVariantList> reply = co_await m_bus.call(
            referenceOf(element), u"org.a11y.atspi.Document"_s, u"GetAttributeValue"_s, arguments);
        const QString url = readString(reply);
        if (!url.isEmpty())
            co_return url;
    }
    co_return std::nullopt;
}

void AtSpi::onFocusEvent(const AtSpiReference &object, bool isFocused)
{
    // Events of the element that loses the focus may come after those of the one that gets it, so
    // a loss only clears the element itself.
    if (isFocused)
        m_focused.insert(object.service, object);
    else if (m_focused.value(object.service) == object)
        m_focused.remove(object.service);
}

QCoro::Task<std::optional<QString>> AtSpi::serviceOf(qint64 processIdentifier)
{
    const AtSpiReference registry{.service = u"org.a11y.atspi.Registry"_s, .path = kRootPath};
    const std::optional<QVariantList> children = co_await m_bus.call(registry, kAccessible, u"GetChildren"_s);
    const QList<AtSpiReference> applications = readReferences(children);
    for (const AtSpiReference &application : applications) {
        if (!m_processes.contains(application.service)) {
            const std::optional<qint64> owner = co_await m_bus.processIdentifier(application.service);
            if (!owner)
                continue;
            m_processes.insert(application.service, *owner);
        }
        if (m_processes.value(application.service) == processIdentifier)
            co_return application.service;
    }
    co_return std::nullopt;
}

QCoro::Task<std::optional<AtSpiReference>> AtSpi::searchFocus(QString service)
{
    const AtSpiReference root{.service = service, .path = kRootPath};
    const std::optional<QVariantList> children = co_await m_bus.call(root, kAccessible, u"GetChildren"_s);
    const QList<AtSpiReference> frames = readReferences(children);
    constexpr int kFocusedState = 1 << 12;
    const MatchRule rule{.states = {kFocusedState, 0}, .interfaces = {u"Text"_s}};
    constexpr uint kCanonicalOrder = 1;
    constexpr int kNoLimit = 0;
    QVariantList arguments;
    arguments.append(QVariant::fromValue(rule));
    arguments.append(kCanonicalOrder);
    arguments.append(kNoLimit);
    arguments.append(true);
    for (const AtSpiReference &frame : frames) {
        const std::optional<QVariantList> reply =
            co_await m_bus.call(frame, u"org.a11y.atspi.Collection"_s, u"GetMatches"_s, arguments);
        const QList<AtSpiReference> matches = readReferences(reply);
        if (!matches.isEmpty())
            co_return matches.first();
    }
    co_return std::nullopt;
}

} // namespace vesk
