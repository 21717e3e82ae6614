// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspiquestion.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <coroutine>
#include <memory>
#include <utility>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kDaemon = QStringLiteral("org.freedesktop.DBus");

/// Suspends until a call is answered or the bus is closed: Qt does not finish the calls of a closed
/// connection.
class Answer final
{
public:
    Answer(AtSpiBus &bus, const QDBusPendingCall &call)
        : m_bus(&bus)
        // deleteLater, because the watcher may be emitting `finished` when it is no longer needed.
        , m_watcher(new QDBusPendingCallWatcher(call), [](QObject *watcher) { watcher->deleteLater(); })
    {
    }

    [[nodiscard]] bool await_ready() const { return m_watcher->isFinished(); }
    void await_suspend(std::coroutine_handle<> handle) const
    {
        const auto waiting = std::make_shared<std::coroutine_handle<>>(handle);
        const auto resume = [waiting] {
            if (*waiting)
                std::exchange(*waiting, {}).resume();
        };
        QObject::connect(m_watcher.get(), &QDBusPendingCallWatcher::finished, m_watcher.get(), resume);
        QObject::connect(m_bus, &AtSpiBus::disconnected, m_watcher.get(), resume);
    }
    [[nodiscard]] QDBusMessage await_resume() const
    {
        return m_watcher->isFinished() ? m_watcher->reply() : QDBusMessage();
    }

private:
    AtSpiBus *m_bus;
    std::shared_ptr<QDBusPendingCallWatcher> m_watcher;
};

/// Whether nobody sent this error: it stands for an answer that did not arrive.
bool isTimeout(const QDBusMessage &reply)
{
    const QDBusError::ErrorType error = QDBusError(reply).type();
    return error == QDBusError::NoReply || error == QDBusError::Timeout || error == QDBusError::TimedOut;
}

// The arguments of an answer are each read by a separate coroutine, so that the call itself is already under
// way.

QCoro::Task<std::optional<QList<AtSpiReference>>> readReferences(AtSpiQuestion::Reply pending)
{
    const std::optional<QVariantList> reply = co_await pending;
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    co_return AtSpiReference::readList(reply->first());
}

QCoro::Task<std::optional<AtSpiReference>> readReference(AtSpiQuestion::Reply pending)
{
    const std::optional<QVariantList> reply = co_await pending;
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    const AtSpiReference reference = AtSpiReference::read(reply->first());
    if (reference.isNull())
        co_return std::nullopt;
    co_return reference;
}

QCoro::Task<std::optional<AtSpiStates>> readStates(AtSpiQuestion::Reply pending)
{
    const std::optional<QVariantList> reply = co_await pending;
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    const auto words = qdbus_cast<QList<uint>>(reply->first());
    quint64 states = 0;
    for (qsizetype index = 0; index < std::min(words.size(), qsizetype{2}); ++index)
        states |= quint64{words.at(index)} << (32 * index);
    co_return AtSpiStates(states);
}

QCoro::Task<std::optional<QString>> readString(AtSpiQuestion::Reply pending)
{
    const std::optional<QVariantList> reply = co_await pending;
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    co_return reply->first().toString();
}

QCoro::Task<std::optional<bool>> readIsText(AtSpiQuestion::Reply pending)
{
    const std::optional<QVariantList> reply = co_await pending;
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    co_return reply->first().toStringList().contains(u"org.a11y.atspi.Text"_s);
}

QCoro::Task<std::optional<qint64>> readNumber(AtSpiQuestion::Reply pending)
{
    const std::optional<QVariantList> reply = co_await pending;
    if (!reply || reply->isEmpty())
        co_return std::nullopt;
    co_return reply->first().toLongLong();
}

} // namespace

AtSpiQuestion::AtSpiQuestion(AtSpiBus &bus, const Deadlines &deadlines)
    : m_bus(&bus)
    , m_generation(bus.generation())
    , m_callDeadline(deadlines.call)
    , m_deadline(deadlines.question, Qt::PreciseTimer)
{
}

bool AtSpiQuestion::isOver() const
{
    return m_bus.isNull() || m_bus->generation() != m_generation || m_deadline.hasExpired();
}

AtSpiQuestion::Reply AtSpiQuestion::call(const AtSpiReference &object, const QString &interface,
                                         const QString &method, const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    message.setArguments(arguments);
    return send(*this, message);
}

AtSpiQuestion::Reply AtSpiQuestion::property(const AtSpiReference &object, const QString &interface,
                                             const QString &name) const
{
    return call(object, kProperties, u"Get"_s, {interface, name});
}

QCoro::Task<std::optional<QList<AtSpiReference>>> AtSpiQuestion::children(const AtSpiReference &object) const
{
    return readReferences(call(object, kAccessible, u"GetChildren"_s));
}

QCoro::Task<std::optional<AtSpiReference>> AtSpiQuestion::parent(const AtSpiReference &object) const
{
    return readReference(property(object, kAccessible, u"Parent"_s));
}

QCoro::Task<std::optional<AtSpiStates>> AtSpiQuestion::states(const AtSpiReference &object) const
{
    return readStates(call(object, kAccessible, u"GetState"_s));
}

QCoro::Task<std::optional<QString>> AtSpiQuestion::roleName(const AtSpiReference &object) const
{
    return readString(call(object, kAccessible, u"GetRoleName"_s));
}

QCoro::Task<std::optional<bool>> AtSpiQuestion::isText(const AtSpiReference &object) const
{
    return readIsText(call(object, kAccessible, u"GetInterfaces"_s));
}

QCoro::Task<std::optional<qint64>> AtSpiQuestion::processIdentifier(const QString &service) const
{
    const AtSpiReference daemon{.service = kDaemon, .path = u"/org/freedesktop/DBus"_s};
    return readNumber(call(daemon, kDaemon, u"GetConnectionUnixProcessID"_s, {service}));
}

AtSpiQuestion::Reply AtSpiQuestion::send(AtSpiQuestion question, QDBusMessage message)
{
    if (question.isOver()) {
        *question.m_isSilent = true;
        co_return std::nullopt;
    }
    const auto remaining =
        std::chrono::milliseconds(std::max(question.m_deadline.remainingTime(), qint64{1}));
    const std::optional<QDBusPendingCall> pending =
        question.m_bus->send(message, std::min(remaining, question.m_callDeadline));
    if (!pending)
        co_return std::nullopt;
    const Answer answer(*question.m_bus, *pending);
    const QDBusMessage reply = co_await answer;
    if (reply.type() == QDBusMessage::InvalidMessage || isTimeout(reply))
        *question.m_isSilent = true;
    // Ignore an answer that arrives after the user has withdrawn consent.
    if (question.m_bus.isNull() || question.m_bus->generation() != question.m_generation
        || reply.type() != QDBusMessage::ReplyMessage)
        co_return std::nullopt;
    co_return reply.arguments();
}

} // namespace vesk
