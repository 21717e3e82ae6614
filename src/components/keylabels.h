// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// The labels that this desktop's keyboards have for the key glyphs used in Vesk's texts, and for keys that
/// have a name instead.
class KeyLabels : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Where the keys are pressed: Command stands for a different key in global combinations than in Vesk's
    /// own windows.
    enum Place {
        Global,
        Window,
    };
    Q_ENUM(Place)

    /// The label of a key; anything that is neither a glyph nor a name is returned unchanged.
    [[nodiscard]] Q_INVOKABLE static QString label(const QString &glyph, vesk::KeyLabels::Place place);
    /// A text with its combinations, as in "Delete (⌘⌫)", spelt out in labels: "Delete (Ctrl+Backspace)".
    [[nodiscard]] Q_INVOKABLE static QString spelt(const QString &text, vesk::KeyLabels::Place place);
};

} // namespace vesk
