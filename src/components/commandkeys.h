// SPDX-License-Identifier: MIT
#pragma once

#include "commands/command.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vesk {

class GlobalKeys;

/// The keys that work everywhere as every view of an engine shows them: those that the user has chosen,
/// and which of them another program has.
class CommandKeys final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The menu's entry for a new note, with its keys.
    Q_PROPERTY(QString newNoteTitle READ newNoteTitle NOTIFY changed)
    /// The menu's entry that tells of keys that are taken; empty if none is.
    Q_PROPERTY(QString takenTitle READ takenTitle NOTIFY changed)
    /// What saves a prompt, in the notation of Vesk's texts; empty if it is switched off.
    Q_PROPERTY(QStringList promptKeys READ promptKeys NOTIFY changed)
    Q_PROPERTY(QString promptSpoken READ promptSpoken NOTIFY changed)
    /// Whether that is one key tapped twice, and no combination.
    Q_PROPERTY(bool isPromptTapped READ isPromptTapped NOTIFY changed)
    Q_PROPERTY(bool isPromptTaken READ isPromptTaken NOTIFY changed)

public:
    /// `keys` have to outlive this object; without them all is as it is by default, and works.
    explicit CommandKeys(const GlobalKeys *keys, QObject *parent = nullptr);

    static CommandKeys *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /// Key by key in the notation of Vesk's texts; empty if the combination is switched off.
    [[nodiscard]] QStringList glyphs(Command command) const;
    /// As it is said in a sentence: "Alt+Super+N". Empty if the combination is switched off.
    [[nodiscard]] QString spelt(Command command) const;
    [[nodiscard]] bool isTaken(Command command) const;
    /// Who has what is taken: names, or what stands for them.
    [[nodiscard]] QString holders() const;
    /// Why the combination does not work, and what the user can do; empty if it works.
    [[nodiscard]] QString notice(Command command) const;

    [[nodiscard]] QString newNoteTitle() const;
    [[nodiscard]] QString takenTitle() const;
    [[nodiscard]] QStringList promptKeys() const;
    /// The same as a screen reader says it.
    [[nodiscard]] QString promptSpoken() const;
    [[nodiscard]] bool isPromptTapped() const;
    [[nodiscard]] bool isPromptTaken() const;

Q_SIGNALS:
    void changed();

private:
    /// The user's file as a person would call it.
    [[nodiscard]] QString fileName() const;

    const GlobalKeys *m_keys;
};

/// Lends the program's keys to the views of an engine, which they have to outlive. Comes before the views.
void lendKeys(QQmlEngine &engine, const GlobalKeys &keys);

} // namespace vesk
