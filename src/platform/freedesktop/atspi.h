// SPDX-License-Identifier: MIT
#pragma once

#include "platform/accessibility.h"
#include "platform/freedesktop/atspibus.h"

#include <QCoroTask>

#include <QHash>
#include <QObject>

#include <optional>

namespace vesk {

/// Other applications' user interfaces, read over the accessibility bus. Elements are named by
/// service and path. Every answer is none while stopped.
class AtSpi final : public QObject
{
    Q_OBJECT

public:
    AtSpi();

    void start() { m_bus.start(); }
    void stop();

    /// What has the keyboard in an application: what it last said itself, else what a search finds.
    QCoro::Task<std::optional<AccessibleElement>> focusedElement(qint64 processIdentifier);
    QCoro::Task<std::optional<AccessibleElement>> parent(AccessibleElement element);
    QCoro::Task<std::optional<QString>> role(AccessibleElement element);
    /// Empty if the element is a text without a selection; none if it is no text or does not answer.
    QCoro::Task<std::optional<QString>> selectedText(AccessibleElement element);
    /// Address of the page that a document shows.
    QCoro::Task<std::optional<QString>> documentUrl(AccessibleElement element);

private:
    void onFocusEvent(const AtSpiReference &object, bool isFocused);
    QCoro::Task<std::optional<QString>> serviceOf(qint64 processIdentifier);
    QCoro::Task<std::optional<AtSpiReference>> searchFocus(QString service);

    AtSpiBus m_bus;
    /// By service; only what an application has said since Vesk listens.
    QHash<QString, AtSpiReference> m_focused;
    /// Services are never used twice, so this holds as long as the bus does.
    QHash<QString, qint64> m_processes;
};

} // namespace vesk
