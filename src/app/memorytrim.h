// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace vesk {

class Application;

/// Returns free memory to the system a while after the start, and each time Vesk has been hidden for a while.
/// What a search needed is not held until the next one, hours later.
class MemoryTrim final : public QObject
{
    Q_OBJECT

public:
    /// `application` must outlive this object.
    explicit MemoryTrim(Application &application);

private:
    QTimer m_quiet;
};

} // namespace vesk
