// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/virtualdesktop.h"

namespace vesk {

/// A popular text editor (Mousepad) with a file open, controlled only by keys.
class TextEditor final
{
public:
    /// Opens a file of this name with these lines. Null if its window did not appear with the focus.
    [[nodiscard]] static std::unique_ptr<TextEditor> open(VirtualDesktop &desktop, const QStringList &lines,
                                                          const QString &name = QStringLiteral("sample.txt"));

    /// Selects the whole line with this index. Returns false if the editor never reported that.
    [[nodiscard]] bool selectLine(int index);

    /// Moves the cursor to the start with nothing selected. Returns false if the selection stayed.
    [[nodiscard]] bool deselect();

    /// The current content of the editor; nullopt if it did not answer.
    [[nodiscard]] std::optional<QString> text();

    /// The content as the editor tells it to a screen reader. This selects nothing, so a paste may arrive at
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
