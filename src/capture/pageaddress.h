// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QString>

#include <optional>

namespace vesk {

class Accessibility;
class Clock;

/// The address of the web page around what has the keyboard in the application with this process
/// identifier. None if that is no page, its scheme is neither http nor https, or the answer takes
/// more than 300 ms. Both objects have to outlive the wait.
QCoro::Task<std::optional<QString>> readPageAddress(Accessibility *accessibility, Clock *clock,
                                                    qint64 processIdentifier);

} // namespace vesk
