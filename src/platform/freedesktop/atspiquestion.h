// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspibus.h"

#include <QCoroTask>

#include <QDeadlineTimer>
#include <QPointer>
#include <QStringList>
#include <QVariantList>

#include <bitset>
#include <chrono>
#include <optional>

namespace vesk {

/// The states of an object, by the numbers of the accessibility bus.
using AtSpiStates = std::bitset<64>;

namespace atspistate {
inline constexpr size_t kActive = 1;
inline constexpr size_t kEditable = 7;
inline constexpr size_t kFocused = 12;
inline constexpr size_t kVisible = 30;
inline constexpr size_t kManagesDescendants = 31;
} // namespace atspistate

/// One question to other applications: calls that keep to one deadline together. A small value;
/// copies share the deadline. Once it has passed, or the bus that was asked is left, every call gives
/// none at once.
class AtSpiQuestion final
{
public:
    using Reply = QCoro::Task<std::optional<QVariantList>>;

    struct Deadlines
    {
        /// The longest that a whole question takes.
        std::chrono::milliseconds question{300};
        /// The longest wait for one answer. A working application answers within a few milliseconds.
        std::chrono::milliseconds call{100};
    };

    AtSpiQuestion(AtSpiBus &bus, const Deadlines &deadlines);

    [[nodiscard]] bool isOver() const;

    /// Calls a method. The call is made at once, so that several can be under way. None if the
    /// answer is an error or none comes in time.
    Reply call(const AtSpiReference &object, const QString &interface, const QString &method,
               const QVariantList &arguments = {}) const;
    [[nodiscard]] Reply property(const AtSpiReference &object, const QString &interface,
                                 const QString &name) const;

    /// None if the object does not answer; so do the others.
    [[nodiscard]] QCoro::Task<std::optional<QList<AtSpiReference>>>
    children(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<AtSpiReference>> parent(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<AtSpiStates>> states(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<QString>> roleName(const AtSpiReference &object) const;
    /// Whether it has the Text interface.
    [[nodiscard]] QCoro::Task<std::optional<bool>> isText(const AtSpiReference &object) const;
    /// Process that owns a connection to the bus; none if it is gone.
    [[nodiscard]] QCoro::Task<std::optional<qint64>> processIdentifier(const QString &service) const;

private:
    static Reply send(AtSpiQuestion question, QDBusMessage message);

    QPointer<AtSpiBus> m_bus;
    int m_generation;
    std::chrono::milliseconds m_callDeadline;
    QDeadlineTimer m_deadline;
};

} // namespace vesk
