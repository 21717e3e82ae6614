// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QString>

#include <optional>

namespace vesk {

class Accessibility;
class Clock;

/// Returns the address of the web page that contains the element with the focus in this process. Nullopt
/// if the element is not in a page, the scheme is neither http nor https, or the answer takes more than 300
/// ms. Both objects must outlive the wait.
QCoro::Task<std::optional<QString>> readPageAddress(Accessibility *accessibility, Clock *clock,
                                                    qint64 processIdentifier);

/// Returns the full address that a browser's address bar shows as `text`: the address of the page in the
/// active window, if the keyboard is not in a page and `text` is that address without the parts that browsers
/// hide. Nullopt otherwise, or if the answers take more than 600 ms. Both objects must outlive the wait.
QCoro::Task<std::optional<QString>> wholeAddress(Accessibility *accessibility, Clock *clock,
                                                 qint64 processIdentifier, QString text);

/// Whether a browser may show `address` as `text`: without the scheme, possibly without "www." and the slash
/// of an empty path, with or without percent-encoding.
[[nodiscard]] bool isShownForm(const QString &text, const QString &address);

} // namespace vesk
