// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QQmlEngine;

namespace vesk {

class Pasteboard;

/// The pasteboards that the text items of one QML engine copy to and paste from. Owned by the engine.
class LentPasteboards final : public QObject
{
    Q_OBJECT

public:
    LentPasteboards(Pasteboard &pasteboard, Pasteboard *primary, Pasteboard *dragged, QQmlEngine &engine);

    /// What was lent to this engine; null if nothing was.
    [[nodiscard]] static LentPasteboards *findFor(const QQmlEngine &engine);

    [[nodiscard]] Pasteboard &pasteboard() const { return m_pasteboard; }
    /// What holds the text that is selected, for the middle mouse button; null if the platform has none.
    [[nodiscard]] Pasteboard *primary() const { return m_primary; }
    /// What holds the text that is being dragged to Vesk; null if the platform has none.
    [[nodiscard]] Pasteboard *dragged() const { return m_dragged; }

private:
    Pasteboard &m_pasteboard;
    Pasteboard *m_primary;
    Pasteboard *m_dragged;
};

/// Readies an engine for note editors and text fields: none of its text items uses the toolkit's clipboard
/// any more. The pasteboards must outlive the engine; all but the first may be null.
void lendToEditors(QQmlEngine &engine, Pasteboard &pasteboard, Pasteboard *primary,
                   Pasteboard *dragged = nullptr);

} // namespace vesk
