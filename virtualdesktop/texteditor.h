// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/virtualdesktop.h"

namespace vesk {

/// A text editor that people use (Mousepad) with a file open, driven by keys alone.
class TextEditor final
{
public:
    /// Opens a file of this name with these lines. Null if its window did not come up and take the
    /// keyboard.
    [[nodiscard]] static std::unique_ptr<TextEditor> open(VirtualDesktop &desktop, const QStringList &lines,
                                                          const QString &name = QStringLiteral("sample.txt"));

    /// Selects the whole of the line with this index. False if the editor never said that it has.
    [[nodiscard]] bool selectLine(int index);

    /// Puts the cursor at the start with nothing selected. False if the selection stayed.
    [[nodiscard]] bool deselect();

    /// What stands in the editor now; none if it did not answer.
    [[nodiscard]] std::optional<QString> text();

    /// The same as the editor tells a screen reader: nothing is selected to find out, so a paste may come at
    /// any time.
    [[nodiscard]] QString shownText() const;

    [[nodiscard]] const Window &window() const { return m_window; }
    [[nodiscard]] ChildProcess &process() { return *m_process; }

private:
    TextEditor(VirtualDesktop &desktop, std::unique_ptr<ChildProcess> process, QStringList lines);

    VirtualDesktop &m_desktop;
    std::unique_ptr<ChildProcess> m_process;
    QStringList m_lines;
    Window m_window;
};

} // namespace vesk
