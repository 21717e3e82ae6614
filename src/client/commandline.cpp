// SPDX-License-Identifier: MIT
#include "client/commandline.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using Kind = CommandLine::Kind;

/// One way to call the program.
struct Form
{
    QLatin1StringView word;
    /// Empty for none.
    QLatin1StringView option;
    Kind kind;
    /// Empty where no method of the running Vesk is called.
    QLatin1StringView method;
};

// The usages below, the completions and the manual page list the same.
constexpr std::array kForms{
    Form{"toggle"_L1, ""_L1, Kind::Call, "Toggle"_L1},
    Form{"write"_L1, ""_L1, Kind::Call, "Write"_L1},
    Form{"quit"_L1, ""_L1, Kind::Quit, "Quit"_L1},
    Form{"capture"_L1, ""_L1, Kind::Call, "Capture"_L1},
    Form{"capture"_L1, "--append"_L1, Kind::Call, "CaptureToLastNote"_L1},
    Form{"capture"_L1, "--checklist"_L1, Kind::Call, "CaptureChecklist"_L1},
    Form{"add-to-checklist"_L1, ""_L1, Kind::Call, "AddToChecklist"_L1},
    Form{"save-prompt"_L1, ""_L1, Kind::Call, "SavePrompt"_L1},
    Form{"quick-note"_L1, ""_L1, Kind::Call, "QuickNote"_L1},
    Form{"quick-note"_L1, "--checklist"_L1, Kind::Call, "QuickChecklist"_L1},
    Form{"list"_L1, ""_L1, Kind::List, ""_L1},
    Form{"list"_L1, "--json"_L1, Kind::List, ""_L1},
    Form{"keys"_L1, ""_L1, Kind::Keys, "Keys"_L1},
    Form{"keys"_L1, "--json"_L1, Kind::Keys, "Keys"_L1},
    Form{"help"_L1, ""_L1, Kind::Help, ""_L1},
};

/// What is said here.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vesk::CommandLine)
};

/// How the program is called, and what that does.
struct Usage
{
    const char *call;
    const char *effect;
};

constexpr std::array kCommands{
    Usage{"toggle", QT_TRANSLATE_NOOP("vesk::CommandLine", "show or hide the panel")},
    Usage{"write", QT_TRANSLATE_NOOP("vesk::CommandLine", "show the panel to write a note")},
    Usage{"capture", QT_TRANSLATE_NOOP("vesk::CommandLine", "save the selected text as a note")},
    Usage{"capture --append", QT_TRANSLATE_NOOP("vesk::CommandLine", "add it to the note changed last")},
    Usage{"capture --checklist",
          QT_TRANSLATE_NOOP("vesk::CommandLine", "save each selected line as a checkbox")},
    Usage{"add-to-checklist",
          QT_TRANSLATE_NOOP("vesk::CommandLine", "add the selected lines to the checklist changed last")},
    Usage{"save-prompt", QT_TRANSLATE_NOOP("vesk::CommandLine", "save the selected text as a prompt")},
    Usage{"quick-note [--checklist]", QT_TRANSLATE_NOOP("vesk::CommandLine", "open the quick-note box")},
    Usage{"quit", QT_TRANSLATE_NOOP("vesk::CommandLine", "quit Vesk")},
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

/// A heading, and a line for each of `usages`.
QString section(const QString &heading, std::span<const Usage> usages)
{
    constexpr int kColumn = 33;
    QString text = heading + u'\n';
    for (const Usage &usage : usages)
        text += u"  "_s + QString::fromLatin1(usage.call).leftJustified(kColumn) + Texts::tr(usage.effect)
                + u'\n';
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

ParsedCommandLine parseForm(const QString &word, const QStringList &options)
{
    const auto isNamed = [&word](const Form &form) { return word == form.word; };
    if (std::ranges::none_of(kForms, isNamed))
        return wrong(Texts::tr("Unknown command: %1").arg(word));
    if (options.size() > 1)
        return wrong(Texts::tr("%1: Only one option is allowed.").arg(word));
    const QString option = options.value(0);
    const auto isMeant = [&](const Form &form) { return isNamed(form) && option == form.option; };
    const auto *const form = std::ranges::find_if(kForms, isMeant);
    if (form == kForms.end())
        return wrong(Texts::tr("%1: Unknown option %2").arg(word, option));
    return right({.kind = form->kind, .method = form->method, .isJson = option == "--json"_L1});
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
           + section(Texts::tr("Commands for the running Vesk, which is started in the background if "
                               "necessary:"),
                     kCommands)
           + section(Texts::tr("Commands that work without a running Vesk:"), kOwnCommands)
           + section(Texts::tr("Options:"), kOptions)
           + Texts::tr("Exit status: 0 success, 1 failure (standard error says why), 2 wrong usage.") + u'\n';
}

} // namespace vesk
