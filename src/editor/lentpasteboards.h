// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QQmlEngine;

namespace vesk {

class Pasteboard;

/// The pasteboards that the editors of one QML engine copy to and paste from. Owned by the engine.
class LentPasteboards final : public QObject
{
    Q_OBJECT

public:
    LentPasteboards(Pasteboard &pasteboard, Pasteboard *primary, QQmlEngine &engine);

    /// What was lent to this engine; null if nothing was.
    [[nodiscard]] static LentPasteboards *findFor(const QQmlEngine &engine);

    [[nodiscard]] Pasteboard &pasteboard() const { return m_pasteboard; }
    /// What holds the text that is selected, for the middle mouse button; null if the platform has none.
    [[nodiscard]] Pasteboard *primary() const { return m_primary; }

private:
    Pasteboard &m_pasteboard;
    Pasteboard *m_primary;
};

/// Readies an engine for editors. The pasteboards have to outlive the engine; `primary` may be null.
void lendToEditors(QQmlEngine &engine, Pasteboard &pasteboard, Pasteboard *primary);

} // namespace vesk
