// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vesk {

/// What the words after `vesk` ask for.
struct CommandLine
{
    enum class Kind {
        /// Start Vesk, or bring the running one up.
        Start,
        /// Have `method` of the running Vesk called; start one if none runs.
        Call,
        /// Let the running Vesk end.
        Quit,
        /// Keep `text` as a note.
        Add,
        /// Keep standard input as a note.
        AddInput,
        /// Print the notes.
        List,
        /// Print the combinations of keys.
        Keys,
        /// Ask or set whether Vesk may read other applications, by `arguments`.
        Access,
        Help,
        Version,
    };

    Kind kind = Kind::Start;
    /// Of the interface org.vesk.Vesk.
    QString method = {};
    QString text = {};
    /// What is handed on to the program that shows the windows.
    QStringList arguments = {};
    bool isInBackground = false;
    bool isJson = false;
};

/// Either a command line or what is wrong with it, in one sentence.
struct ParsedCommandLine
{
    std::optional<CommandLine> command;
    QString error;
};

/// `words` are those after the program's name.
[[nodiscard]] ParsedCommandLine parseCommandLine(const QStringList &words);

/// What `vesk --help` prints.
[[nodiscard]] QString commandLineHelp();

} // namespace vesk
