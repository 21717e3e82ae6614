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

/// The states of an object, numbered as on the accessibility bus.
using AtSpiStates = std::bitset<64>;

namespace atspistate {
inline constexpr size_t kActive = 1;
inline constexpr size_t kEditable = 7;
inline constexpr size_t kFocused = 12;
inline constexpr size_t kShowing = 25;
inline constexpr size_t kVisible = 30;
inline constexpr size_t kManagesDescendants = 31;
} // namespace atspistate

/// One question to other applications: a group of calls with a common deadline. A small value; copies share
/// the deadline and `isSilent`. Once the deadline has passed or the bus was left, every call returns nullopt
/// at once.
class AtSpiQuestion final
{
public:
    using Reply = QCoro::Task<std::optional<QVariantList>>;

    struct Deadlines
    {
        /// The longest time for the whole question.
        std::chrono::milliseconds question{300};
        /// The longest wait for one answer. A working application answers within a few milliseconds.
        std::chrono::milliseconds call{100};
    };

    AtSpiQuestion(AtSpiBus &bus, const Deadlines &deadlines);

    [[nodiscard]] bool isOver() const;
    /// Whether any call so far was not answered in time. An error counts as an answer.
    [[nodiscard]] bool isSilent() const { return *m_isSilent; }

    /// Calls a method. The call is sent at once, so several can run at the same time. Returns nullopt if the
    /// answer is an error or does not arrive in time.
    Reply call(const AtSpiReference &object, const QString &interface, const QString &method,
               const QVariantList &arguments = {}) const;
    [[nodiscard]] Reply property(const AtSpiReference &object, const QString &interface,
                                 const QString &name) const;

    /// Returns nullopt if the object does not answer; so do the functions below.
    [[nodiscard]] QCoro::Task<std::optional<QList<AtSpiReference>>>
    children(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<AtSpiReference>> parent(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<AtSpiStates>> states(const AtSpiReference &object) const;
    [[nodiscard]] QCoro::Task<std::optional<QString>> roleName(const AtSpiReference &object) const;
    /// Whether it has the Text interface.
    [[nodiscard]] QCoro::Task<std::optional<bool>> isText(const AtSpiReference &object) const;
    /// Returns the process that owns a connection to the bus; nullopt if it is gone.
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
