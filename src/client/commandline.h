// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace vesk {

/// What the words after `vesk` mean.
struct CommandLine
{
    enum class Kind {
        /// Start Vesk, or show the panel of the running one.
        Start,
        /// Call `method` of the running Vesk, starting it if necessary.
        Call,
        /// Quit the running Vesk.
        Quit,
        /// Save `text` as a note.
        Add,
        /// Save standard input as a note.
        AddInput,
        List,
        /// Print the global key combinations.
        Keys,
        /// Print or set whether Vesk may read other applications; see `arguments`.
        Access,
        Help,
        Version,
    };

    Kind kind = Kind::Start;
    /// Of the interface org.vesk.Vesk.
    QString method = {};
    QString text = {};
    /// Passed on to the program with the windows.
    QStringList arguments = {};
    bool isInBackground = false;
    bool isJson = false;
};

/// Either a command line, or what is wrong with it in one sentence.
struct ParsedCommandLine
{
    std::optional<CommandLine> command;
    QString error;
};

/// Parses the words after the program's name.
[[nodiscard]] ParsedCommandLine parseCommandLine(const QStringList &words);

/// What `vesk --help` prints.
[[nodiscard]] QString commandLineHelp();

} // namespace vesk
