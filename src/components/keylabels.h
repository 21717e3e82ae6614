// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlEngine>

namespace vesk {

/// What is printed on this desktop's keyboards for the key glyphs that Vesk's texts are written in,
/// and for the keys that have a name instead.
class KeyLabels : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Where the keys are pressed: Command is another key in a combination that works everywhere
    /// than in one of Vesk's own windows.
    enum Place {
        Global,
        Window,
    };
    Q_ENUM(Place)

    /// The label of one key; whatever is neither is its own label.
    [[nodiscard]] Q_INVOKABLE static QString label(const QString &glyph, vesk::KeyLabels::Place place);
    /// A text with its combinations, as in "Delete (⌘⌫)", spelt in labels: "Delete (Ctrl+Backspace)".
    [[nodiscard]] Q_INVOKABLE static QString spelt(const QString &text, vesk::KeyLabels::Place place);
};

} // namespace vesk
