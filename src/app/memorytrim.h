// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace vesk {

class Application;

/// Gives memory that is free back to the system, a while after the start and after each time that Vesk
/// was hidden: what a search needed is not held for the hours until the next one.
class MemoryTrim final : public QObject
{
    Q_OBJECT

public:
    /// `application` has to outlive this.
    explicit MemoryTrim(Application &application);

private:
    QTimer m_quiet;
};

} // namespace vesk
