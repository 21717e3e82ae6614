// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QString>

#include <optional>

namespace vesk {

class Accessibility;
class Clock;

/// The address of the web page around what has the keyboard in the application with this process
/// identifier. Nullopt if that is not in a page, the page's scheme is neither http nor https, or the answer
/// takes more than 300 ms. Both objects must outlive the wait.
QCoro::Task<std::optional<QString>> readPageAddress(Accessibility *accessibility, Clock *clock,
                                                    qint64 processIdentifier);

/// The address that a browser shows as `text` in its address bar: that of the page in the window, where the
/// keyboard is in no page and `text` is its address without the parts that browsers leave out. Nullopt if
/// that is not so, or the answers take more than 600 ms. Both objects must outlive the wait.
QCoro::Task<std::optional<QString>> wholeAddress(Accessibility *accessibility, Clock *clock,
                                                 qint64 processIdentifier, QString text);

/// Whether `text` is how browsers show `address`: without its scheme and perhaps without "www." and the
/// slash of an empty path, as it stands or decoded.
[[nodiscard]] bool isShownForm(const QString &text, const QString &address);

} // namespace vesk
