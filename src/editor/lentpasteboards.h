// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QQmlEngine;

namespace vesk {

class Pasteboard;

/// The pasteboards that the text items of a QML engine copy to and paste from. Owned by the engine.
class LentPasteboards final : public QObject
{
    Q_OBJECT

public:
    LentPasteboards(Pasteboard &pasteboard, Pasteboard *primary, Pasteboard *dragged, QQmlEngine &engine);

    /// The pasteboards lent to this engine; null if there are none.
    [[nodiscard]] static LentPasteboards *findFor(const QQmlEngine &engine);

    [[nodiscard]] Pasteboard &pasteboard() const { return m_pasteboard; }
    /// The currently selected text, for the middle mouse button; null if the platform does not have this.
    [[nodiscard]] Pasteboard *primary() const { return m_primary; }
    /// The text that is being dragged to Vesk; null if the platform does not have this.
    [[nodiscard]] Pasteboard *dragged() const { return m_dragged; }

private:
    Pasteboard &m_pasteboard;
    Pasteboard *m_primary;
    Pasteboard *m_dragged;
};

/// Prepares an engine for note editors and text fields: none of its text items uses the toolkit's clipboard
/// any more. The pasteboards must outlive the engine; all but the first may be null.
void lendToEditors(QQmlEngine &engine, Pasteboard &pasteboard, Pasteboard *primary,
                   Pasteboard *dragged = nullptr);

} // namespace vesk
