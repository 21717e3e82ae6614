// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/desktoptest.h"

namespace vesk {

/// A test on a desktop where Vesk runs, allowed to read, behind an editor with two lines; each function
/// has a new one.
class EditorTest : public QObject
{
    Q_OBJECT

protected:
    using Keys = QList<xcb_keysym_t>;

    /// Presses keys together with Super and Alt, as a hand does.
    void press(const Keys &keys);
    void capture() { press({XK_n}); }
    void togglePanel() { press({XK_t}); }
    void tapShiftTwice();

    /// Runs a program on the desktop to its end; whether it did so with success.
    [[nodiscard]] bool runToEnd(const QString &program, const QStringList &arguments);
    [[nodiscard]] bool waitNotice(const QString &message);
    /// Whether nothing was typed into the editor.
    [[nodiscard]] bool isEditorUntouched();

    const QStringList m_lines = {QStringLiteral("Water the lemon tree on the balcony"),
                                 QStringLiteral("Ask about the train to Ghent")};
    std::unique_ptr<VirtualDesktop> m_desktop;
    std::unique_ptr<ChildProcess> m_vesk;
    std::unique_ptr<TextEditor> m_editor;

private Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace vesk
