// SPDX-License-Identifier: MIT
#include "input/keysettings.h"

#include "input/keynames.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Messages about the file of keys.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vesk::KeySettings)
};

using Choice = std::optional<KeyCombination>;

struct ModifierName
{
    QStringView name;
    Qt::KeyboardModifier modifier;
};

constexpr std::array kModifierNames{
    ModifierName{.name = u"Super", .modifier = Qt::MetaModifier},
    ModifierName{.name = u"Win", .modifier = Qt::MetaModifier},
    ModifierName{.name = u"Meta", .modifier = Qt::MetaModifier},
    ModifierName{.name = u"Alt", .modifier = Qt::AltModifier},
    ModifierName{.name = u"Ctrl", .modifier = Qt::ControlModifier},
    ModifierName{.name = u"Control", .modifier = Qt::ControlModifier},
    ModifierName{.name = u"Shift", .modifier = Qt::ShiftModifier},
};

std::optional<Qt::KeyboardModifier> findModifier(QStringView name)
{
    const auto *const found = std::ranges::find_if(kModifierNames, [name](const ModifierName &each) {
        return each.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == kModifierNames.end() ? std::nullopt : std::optional(found->modifier);
}

/// Identifiers separated by commas or spaces, without the suffix of a desktop entry.
QStringList applicationsIn(const QString &text)
{
    static const QRegularExpression separators(u"[,\\s]+"_s);
    QStringList applications = text.split(separators, Qt::SkipEmptyParts);
    for (QString &application : applications) {
        if (application.endsWith(".desktop"_L1))
            application.chop(QLatin1StringView(".desktop").size());
    }
    return applications;
}

/// A combination, or one sentence that says why the text is not one.
struct ParsedCombination
{
    Choice combination;
    QString problem;
};

QStringList wordsOf(const QString &text)
{
    static const QRegularExpression separators(u"[+\\s]+"_s);
    QStringList words = text.split(separators, Qt::SkipEmptyParts);
    // The separator itself is the key.
    if (text.endsWith("++"_L1) || text.endsWith("+ +"_L1))
        words.append(u"+"_s);
    return words;
}

ParsedCombination parseCombination(const QString &text, const HotKeys *keyboard)
{
    const auto wrong = [](const QString &problem) {
        return ParsedCombination{.combination = std::nullopt, .problem = problem};
    };
    QStringList words = wordsOf(text);
    if (words.isEmpty())
        return wrong(Texts::tr("The combination is empty."));
    const QString name = words.takeLast();
    KeyCombination combination{};
    for (const QString &word : std::as_const(words)) {
        const std::optional<Qt::KeyboardModifier> modifier = findModifier(word);
        if (!modifier)
            return wrong(
                Texts::tr("“%1” is not a modifier. The modifiers are Super, Alt, Ctrl and Shift.").arg(word));
        combination.modifiers |= *modifier;
    }
    const std::optional<KeyPosition> key = keynames::findKey(name, keyboard);
    if (!key)
        return wrong(findModifier(name) ? Texts::tr("The key after the modifiers is missing.")
                                        : Texts::tr("Unknown key: “%1”.").arg(name));
    combination.key = *key;
    if (combination.key == KeyPosition::LeftShift)
        return combination == kDoubleShift ? ParsedCombination{.combination = combination, .problem = {}}
                                           : wrong(Texts::tr("The key after the modifiers is missing."));
    if (!(combination.modifiers & (Qt::MetaModifier | Qt::AltModifier | Qt::ControlModifier)))
        return wrong(
            Texts::tr("The combination needs Super, Alt or Ctrl, or no application could use this key."));
    return {.combination = combination, .problem = {}};
}

/// Turns the lines of a file into settings, one line after the other.
class Reader
{
public:
    explicit Reader(const HotKeys *keyboard)
        : m_keyboard(keyboard)
    {
        for (size_t i = 0; i < m_lines.size(); ++i)
            m_settings.combinations.at(i) = commandsWithKeys()[i].combination;
    }

    void readLine(const QString &line, int number)
    {
        const QString text = line.trimmed();
        if (text.isEmpty() || text.startsWith(u'#') || text.startsWith(u';'))
            return;
        const qsizetype equals = text.indexOf(u'=');
        if (equals < 0) {
            say(number, Texts::tr("“%1” does not have the form “command = combination”.").arg(text.left(40)));
            return;
        }
        const QString command = text.left(equals).simplified();
        const CommandRow *row = findCommand(command);
        if (!row || !row->combination) {
            say(number, Texts::tr("Unknown command: “%1”.").arg(command.left(40)));
            return;
        }
        set(*row, text.mid(equals + 1).trimmed(), number);
    }

    KeySettings result()
    {
        while (undoOneClash()) {
        }
        return m_settings;
    }

private:
    [[nodiscard]] Choice &choice(const CommandRow &row)
    {
        return m_settings.combinations.at(static_cast<size_t>(row.command));
    }
    [[nodiscard]] int &line(const CommandRow &row) { return m_lines.at(static_cast<size_t>(row.command)); }

    void say(int number, const QString &problem)
    {
        m_settings.problems.append(Texts::tr("Keys.conf, line %1: %2").arg(number).arg(problem));
    }

    void keepDefault(const CommandRow &row, int number, const QString &problem)
    {
        choice(row) = row.combination;
        say(number, Texts::tr("%1 “%2” keeps %3.")
                        .arg(problem, row.words.toString(), keynames::written(*row.combination, m_keyboard)));
    }

    void set(const CommandRow &row, const QString &value, int number)
    {
        if (line(row) != 0) {
            say(number,
                Texts::tr("“%1” is already set in line %2, which applies.").arg(row.words).arg(line(row)));
            return;
        }
        line(row) = number;
        static const QRegularExpression exceptPattern(u"^(.*?)\\s*,\\s*not in\\s+(.+)$"_s,
                                                      QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch except = exceptPattern.match(value);
        if (except.hasMatch())
            m_settings.exceptions.at(static_cast<size_t>(row.command)) = applicationsIn(except.captured(2));
        setCombination(row, except.hasMatch() ? except.captured(1) : value, number);
    }

    void setCombination(const CommandRow &row, const QString &value, int number)
    {
        if (value.isEmpty() || value.compare("none"_L1, Qt::CaseInsensitive) == 0) {
            choice(row).reset();
            return;
        }
        const ParsedCombination parsed = parseCombination(value, m_keyboard);
        if (!parsed.combination)
            keepDefault(row, number, parsed.problem);
        else if (parsed.combination == kDoubleShift && row.command != Command::SavePrompt)
            keepDefault(row, number, Texts::tr("Only save-prompt can be Shift tapped twice."));
        else
            choice(row) = parsed.combination;
    }

    /// If two commands share a combination, drops the user's setting for one of them, the later line if both
    /// were set. Returns false if there is no clash. Repeating this terminates because the default
    /// combinations all differ.
    [[nodiscard]] bool undoOneClash()
    {
        for (const CommandRow &first : commandsWithKeys()) {
            for (const CommandRow &second : commandsWithKeys()) {
                if (first.command >= second.command || !choice(first) || choice(first) != choice(second))
                    continue;
                const bool isFirstByDefault = choice(first) == first.combination;
                const bool isFirstLater = line(first) > line(second) && choice(second) != second.combination;
                const bool losesFirst =
                    !isFirstByDefault && (choice(second) == second.combination || isFirstLater);
                const CommandRow &loser = losesFirst ? first : second;
                const CommandRow &winner = losesFirst ? second : first;
                const QString taken = keynames::written(*choice(winner), m_keyboard);
                keepDefault(loser, line(loser),
                            Texts::tr("%1 is already used for “%2”.").arg(taken, winner.words.toString()));
                return true;
            }
        }
        return false;
    }

    const HotKeys *m_keyboard;
    KeySettings m_settings;
    /// The line number that sets each command; 0 for none.
    std::array<int, kCommandsWithKeys> m_lines{};
};

} // namespace

KeySettings readKeySettings(const QString &text, const HotKeys *keyboard)
{
    Reader reader(keyboard);
    int number = 0;
    const QStringList lines = text.split(u'\n');
    for (const QString &line : lines)
        reader.readLine(line, ++number);
    return reader.result();
}

} // namespace vesk
