// SPDX-License-Identifier: MIT
#pragma once

#include "notes/capturesource.h"

#include <QCoroTask>

#include <QString>

#include <optional>

namespace vesk {

class Accessibility;
class Workspace;

/// Reads what is selected in the frontmost application, and where. Has no state of its own.
class SelectionReader final
{
public:
    SelectionReader(Accessibility &accessibility, Workspace &workspace);

    /// The frontmost application and its window, as they are at the call. None if nothing is
    /// frontmost, it has no name, or it is this program. The window's title is left out without the
    /// user's trust, and where it only repeats the application's name.
    [[nodiscard]] std::optional<CaptureSource> readSource() const;

    /// The selected text without white space at its ends; none if nothing but white space is selected
    /// or the selection cannot be read. Texts beyond `kMaximumTextBytes` may be cut beyond that size.
    QCoro::Task<std::optional<QString>> readSelection();

private:
    QCoro::Task<std::optional<QString>> selectedTextViaAccessibility();

    Accessibility &m_accessibility;
    Workspace &m_workspace;
};

} // namespace vesk
