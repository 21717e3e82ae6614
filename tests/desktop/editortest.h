// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/vesktest.h"
#include "virtualdesktop/texteditor.h"

namespace vesk {

/// A test on a desktop where Vesk runs behind an editor with two lines.
class EditorTest : public VeskTest
{
    Q_OBJECT

protected:
    /// Whether nothing was typed into the editor.
    [[nodiscard]] bool isEditorUntouched();
    /// Makes the window manager focus the window under the pointer, and leaves the pointer in the editor.
    /// Returns false if it never did.
    [[nodiscard]] bool letFocusFollowThePointer();

    const QStringList m_lines = {QStringLiteral("Water the lemon tree on the balcony"),
                                 QStringLiteral("Ask about the train to Ghent")};
    std::unique_ptr<TextEditor> m_editor;

protected Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace vesk
