// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/texteditor.h"
#include "desktop/vesktest.h"

namespace vesk {

/// A test on a desktop where Vesk runs behind an editor with two lines.
class EditorTest : public VeskTest
{
    Q_OBJECT

protected:
    /// Whether nothing was typed into the editor.
    [[nodiscard]] bool isEditorUntouched();

    const QStringList m_lines = {QStringLiteral("Water the lemon tree on the balcony"),
                                 QStringLiteral("Ask about the train to Ghent")};
    std::unique_ptr<TextEditor> m_editor;

protected Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace vesk
