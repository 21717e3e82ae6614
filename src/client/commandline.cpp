// SPDX-License-Identifier: MIT
#include "client/commandline.h"

#include "commands/command.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using Kind = CommandLine::Kind;

/// One way to call the program, besides the commands for a running Vesk.
struct Form
{
    QLatin1StringView words;
    Kind kind;
};

// Keep in step with the usages below, the completions and the manual page.
constexpr std::array kForms{
    Form{"list"_L1, Kind::List},        Form{"list --json"_L1, Kind::List}, Form{"keys"_L1, Kind::Keys},
    Form{"keys --json"_L1, Kind::Keys}, Form{"help"_L1, Kind::Help},
};

/// The messages of this file.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vesk::CommandLine)
};

/// A way to call the program, and what it does.
struct Usage
{
    const char *call;
    const char *effect;
};

constexpr std::array kOwnCommands{
    Usage{"add TEXT",
          QT_TRANSLATE_NOOP("vesk::CommandLine", "save TEXT as a note; \"vesk add -\" reads standard input")},
    Usage{"list [--json]", QT_TRANSLATE_NOOP("vesk::CommandLine", "print the notes, newest first")},
    Usage{"keys [--json]",
          QT_TRANSLATE_NOOP("vesk::CommandLine", "print the global keys and whether they work")},
    Usage{"access allow|deny|status",
          QT_TRANSLATE_NOOP("vesk::CommandLine", "allow or forbid Vesk to read selected text")},
};

constexpr std::array kOptions{
    Usage{"--background", QT_TRANSLATE_NOOP("vesk::CommandLine", "start without showing the panel")},
    Usage{"--gpu",
          QT_TRANSLATE_NOOP("vesk::CommandLine", "draw windows with the GPU (only when Vesk starts)")},
    Usage{"-h, --help", QT_TRANSLATE_NOOP("vesk::CommandLine", "print this help")},
    Usage{"-v, --version", QT_TRANSLATE_NOOP("vesk::CommandLine", "print the version")},
};

QString line(const QString &call, const QString &effect)
{
    constexpr int kColumn = 33;
    return u"  "_s + call.leftJustified(kColumn) + effect + u'\n';
}

/// A heading followed by a line for each of `usages`.
QString section(const QString &heading, std::span<const Usage> usages)
{
    QString text = heading + u'\n';
    for (const Usage &usage : usages)
        text += line(QString::fromLatin1(usage.call), Texts::tr(usage.effect));
    return text + u'\n';
}

QString commandSection(const QString &heading)
{
    QString text = heading + u'\n';
    for (const CommandRow &row : commandRows()) {
        if (!row.words.isEmpty())
            text += line(row.words.toString(), purposeOf(row.command));
    }
    return text + u'\n';
}

ParsedCommandLine wrong(const QString &error)
{
    return {.command = std::nullopt, .error = error};
}

ParsedCommandLine right(const CommandLine &command)
{
    return {.command = command, .error = {}};
}

ParsedCommandLine parseStart(const QStringList &words)
{
    CommandLine command;
    for (const QString &word : words) {
        if (word == "--background"_L1)
            command.isInBackground = true;
        else if (word != "--gpu"_L1)
            return wrong(Texts::tr("Unknown option: %1").arg(word));
    }
    command.arguments = words;
    return right(command);
}

ParsedCommandLine parseAdd(const QStringList &words)
{
    if (words.isEmpty())
        return wrong(Texts::tr("add: The text is missing. Give a text, or - to read standard input."));
    if (words.size() > 1)
        return wrong(Texts::tr("add: Too many arguments. Put the text in quotes."));
    if (words.first() == "-"_L1)
        return right({.kind = Kind::AddInput});
    return right({.kind = Kind::Add, .text = words.first()});
}

bool isKnownWord(const QString &word)
{
    const auto isFirst = [&word](const auto &words) {
        return words.startsWith(word) && (words.size() == word.size() || words.at(word.size()) == u' ');
    };
    return std::ranges::any_of(kForms, isFirst, &Form::words)
           || std::ranges::any_of(commandRows(), isFirst, &CommandRow::words);
}

ParsedCommandLine parseForm(const QString &word, const QStringList &options)
{
    if (!isKnownWord(word))
        return wrong(Texts::tr("Unknown command: %1").arg(word));
    if (options.size() > 1)
        return wrong(Texts::tr("%1: Only one option is allowed.").arg(word));
    const QString option = options.value(0);
    const QString words = options.isEmpty() ? word : word + u' ' + option;
    if (const CommandRow *row = findCommand(words)) {
        const Kind kind = row->command == Command::Quit ? Kind::Quit : Kind::Call;
        return right({.kind = kind, .method = row->method});
    }
    const auto *const form = std::ranges::find(kForms, words, &Form::words);
    if (form == kForms.end())
        return wrong(Texts::tr("%1: Unknown option %2").arg(word, option));
    return right({.kind = form->kind, .isJson = option == "--json"_L1});
}

bool isOneOf(const QString &word, QLatin1StringView shortForm, QLatin1StringView longForm)
{
    return word == shortForm || word == longForm;
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList &words)
{
    const QString first = words.value(0);
    const QStringList rest = words.mid(1);
    if (isOneOf(first, "-h"_L1, "--help"_L1) || (rest.size() == 1 && rest.first() == "--help"_L1))
        return right({.kind = Kind::Help});
    if (isOneOf(first, "-v"_L1, "--version"_L1))
        return right({.kind = Kind::Version});
    if (first == "access"_L1)
        return right({.kind = Kind::Access, .arguments = words});
    if (first == "add"_L1)
        return parseAdd(rest);
    if (words.isEmpty() || first.startsWith(u'-'))
        return parseStart(words);
    return parseForm(first, rest);
}

QString commandLineHelp()
{
    return Texts::tr("Usage: vesk [command]\n\nSaves what you select in any application. Without a command, "
                     "starts Vesk, or shows its\npanel if it is already running.")
           + u"\n\n"_s
           + commandSection(Texts::tr("Commands for the running Vesk, which is started in the background if "
                                      "necessary:"))
           + section(Texts::tr("Commands that work without a running Vesk:"), kOwnCommands)
           + section(Texts::tr("Options:"), kOptions)
           + Texts::tr("Exit status: 0 success, 1 failure (standard error says why), 2 wrong usage.") + u'\n';
}

} // namespace vesk
