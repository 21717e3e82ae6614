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
#include <memory>
#include <optional>

namespace vesk {

/// The states of an object, by the numbers of the accessibility bus.
using AtSpiStates = std::bitset<64>;

namespace atspistate {
inline constexpr size_t kActive = 1;
inline constexpr size_t kEditable = 7;
inline constexpr size_t kFocused = 12;
inline constexpr size_t kShowing = 25;
inline constexpr size_t kVisible = 30;
inline constexpr size_t kManagesDescendants = 31;
} // namespace atspistate

/// One question to other applications: calls that keep to one deadline together. A small value;
/// copies share the deadline and `isSilent`. Once the deadline has passed, or the bus that was asked is
/// left, every call gives nullopt at once.
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
    /// Whether a call so far got no answer in time. An error is an answer.
    [[nodiscard]] bool isSilent() const { return *m_isSilent; }

    /// Calls a method. The call is made at once, so that several can be under way. Nullopt if the
    /// answer is an error or does not come in time.
    Reply call(const AtSpiReference &object, const QString &interface, const QString &method,
               const QVariantList &arguments = {}) const;
    [[nodiscard]] Reply property(const AtSpiReference &object, const QString &interface,
                                 const QString &name) const;

    /// Nullopt if the object does not answer; the others below likewise.
    [[nodiscard]] QCoro::Task<std::optional<QList<AtSpiReference>>>
    children(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<AtSpiReference>> parent(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<AtSpiStates>> states(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<QString>> roleName(const AtSpiReference &object) const;
    /// Whether it has the Text interface.
    [[nodiscard]] QCoro::Task<std::optional<bool>> isText(const AtSpiReference &object) const;
    /// Process that owns a connection to the bus; nullopt if it is gone.
    [[nodiscard]] QCoro::Task<std::optional<qint64>> processIdentifier(const QString &service) const;

private:
    static Reply send(AtSpiQuestion question, QDBusMessage message);

    QPointer<AtSpiBus> m_bus;
    int m_generation;
    std::chrono::milliseconds m_callDeadline;
    QDeadlineTimer m_deadline;
    std::shared_ptr<bool> m_isSilent = std::make_shared<bool>(false);
};

} // namespace vesk
