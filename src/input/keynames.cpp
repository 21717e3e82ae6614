// SPDX-License-Identifier: MIT
#include "input/keynames.h"

#include "commands/command.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk::keynames {

namespace {

/// A key that has a name.
struct Named
{
    quint8 key;
    QStringView name;
    /// In the notation of Vesk's texts; empty if the name is used there.
    QStringView glyph = {};
};

constexpr std::array kNamed{
    Named{.key = 1, .name = u"Escape", .glyph = u"esc"},
    Named{.key = 14, .name = u"Backspace", .glyph = u"\u232B"},
    Named{.key = 15, .name = u"Tab", .glyph = u"\u21E5"},
    Named{.key = 28, .name = u"Enter", .glyph = u"\u21A9"},
    Named{.key = 28, .name = u"Return", .glyph = u"\u21A9"},
    Named{.key = 42, .name = u"Shift", .glyph = u"\u21E7"},
    Named{.key = 57, .name = u"Space", .glyph = u"\u2423"},
    Named{.key = 59, .name = u"F1"},
    Named{.key = 60, .name = u"F2"},
    Named{.key = 61, .name = u"F3"},
    Named{.key = 62, .name = u"F4"},
    Named{.key = 63, .name = u"F5"},
    Named{.key = 64, .name = u"F6"},
    Named{.key = 65, .name = u"F7"},
    Named{.key = 66, .name = u"F8"},
    Named{.key = 67, .name = u"F9"},
    Named{.key = 68, .name = u"F10"},
    Named{.key = 87, .name = u"F11"},
    Named{.key = 88, .name = u"F12"},
    Named{.key = 99, .name = u"Print"},
    Named{.key = 102, .name = u"Home"},
    Named{.key = 103, .name = u"Up", .glyph = u"\u2191"},
    Named{.key = 104, .name = u"PageUp"},
    Named{.key = 105, .name = u"Left"},
    Named{.key = 106, .name = u"Right"},
    Named{.key = 107, .name = u"End"},
    Named{.key = 108, .name = u"Down", .glyph = u"\u2193"},
    Named{.key = 109, .name = u"PageDown"},
    Named{.key = 110, .name = u"Insert"},
    Named{.key = 111, .name = u"Delete"},
    Named{.key = 119, .name = u"Pause"},
    Named{.key = 127, .name = u"Menu"},
};

/// Neighbouring keys on an ANSI keyboard.
struct Row
{
    quint8 first;
    QStringView characters;
};

constexpr std::array kRows{
    Row{.first = 2, .characters = u"1234567890-="},
    Row{.first = 16, .characters = u"QWERTYUIOP[]"},
    Row{.first = 30, .characters = u"ASDFGHJKL;'`"},
    Row{.first = 43, .characters = u"\\ZXCVBNM,./"},
};

struct Modifier
{
    Qt::KeyboardModifier modifier;
    QStringView name;
    QStringView glyph;
};

constexpr std::array kWrittenOrder{
    Modifier{.modifier = Qt::MetaModifier, .name = u"Super", .glyph = u"\u2318"},
    Modifier{.modifier = Qt::AltModifier, .name = u"Alt", .glyph = u"\u2325"},
    Modifier{.modifier = Qt::ControlModifier, .name = u"Ctrl", .glyph = u"\u2303"},
    Modifier{.modifier = Qt::ShiftModifier, .name = u"Shift", .glyph = u"\u21E7"},
};

/// The order in which Vesk's texts show the modifiers, as indexes into the table above.
constexpr std::array<size_t, 4> kShownOrder{2, 1, 3, 0};

const Named *findNamed(KeyPosition key)
{
    const auto *const found =
        std::ranges::find_if(kNamed, [key](const Named &each) { return KeyPosition(each.key) == key; });
    return found == kNamed.end() ? nullptr : found;
}

std::optional<KeyPosition> findOnAnsi(QChar character)
{
    for (const Row &row : kRows) {
        const qsizetype place = row.characters.indexOf(character.toUpper());
        if (place >= 0)
            return KeyPosition(row.first + place);
    }
    return std::nullopt;
}

QChar characterOnAnsi(KeyPosition key)
{
    for (const Row &row : kRows) {
        const qsizetype place = qsizetype(key) - row.first;
        if (place >= 0 && place < row.characters.size())
            return row.characters.at(place);
    }
    return {};
}

} // namespace

std::optional<KeyPosition> findKey(QStringView name, const HotKeys *keyboard)
{
    const auto *const named = std::ranges::find_if(
        kNamed, [name](const Named &each) { return each.name.compare(name, Qt::CaseInsensitive) == 0; });
    if (named != kNamed.end())
        return KeyPosition(named->key);
    if (name.size() != 1)
        return std::nullopt;
    const std::optional<KeyPosition> found = keyboard ? keyboard->findKey(name.front()) : std::nullopt;
    // If the layout lacks the letter, as non-Latin layouts do, use its usual place.
    return found ? found : findOnAnsi(name.front());
}

QString nameOf(KeyPosition key, const HotKeys *keyboard)
{
    if (const Named *named = findNamed(key))
        return named->name.toString();
    const QChar printed = keyboard ? keyboard->characterOn(key) : QChar();
    const QChar usual = characterOnAnsi(key);
    // Keyboards for other scripts have the Latin letters as well.
    const bool isOtherScript = usual.isLetter() && printed.script() != QChar::Script_Latin
                               && printed.script() != QChar::Script_Common;
    const QChar shown = printed.isNull() || isOtherScript ? usual : printed;
    return shown.isNull() ? QString() : QString(shown);
}

QString written(KeyCombination combination, const HotKeys *keyboard)
{
    if (combination == kDoubleShift)
        return u"Shift Shift"_s;
    QStringList words;
    for (const Modifier &each : kWrittenOrder) {
        if (combination.modifiers & each.modifier)
            words.append(each.name.toString());
    }
    words.append(nameOf(combination.key, keyboard));
    return words.join(u'+');
}

QStringList glyphs(KeyCombination combination, const HotKeys *keyboard)
{
    QStringList glyphs;
    for (const size_t place : kShownOrder) {
        const Modifier &each = kWrittenOrder.at(place);
        if (combination.modifiers & each.modifier)
            glyphs.append(each.glyph.toString());
    }
    const Named *named = findNamed(combination.key);
    const bool hasGlyph = named && !named->glyph.isEmpty();
    glyphs.append(hasGlyph ? named->glyph.toString() : nameOf(combination.key, keyboard));
    return glyphs;
}

} // namespace vesk::keynames
