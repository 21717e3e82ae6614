// SPDX-License-Identifier: MIT
#pragma once

#include "commands/command.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vesk {

class GlobalKeys;

/// The global keys as every view of an engine shows them: the combinations that the user has chosen, and
/// which of them are taken by another program.
class CommandKeys final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The menu's entry for a new note, with its keys.
    Q_PROPERTY(QString newNoteTitle READ newNoteTitle NOTIFY changed)
    /// The menu entry that reports taken keys; empty if none are taken.
    Q_PROPERTY(QString takenTitle READ takenTitle NOTIFY changed)
    /// The keys that save a prompt, in the notation of Vesk's texts; empty if they are switched off.
    Q_PROPERTY(QStringList promptKeys READ promptKeys NOTIFY changed)
    Q_PROPERTY(QString promptSpoken READ promptSpoken NOTIFY changed)
    /// Whether the prompt is saved by tapping one key twice rather than by a combination.
    Q_PROPERTY(bool isPromptTapped READ isPromptTapped NOTIFY changed)
    Q_PROPERTY(bool isPromptTaken READ isPromptTaken NOTIFY changed)

public:
    /// `keys` must outlive this object. If null, all combinations are the defaults and count as working.
    explicit CommandKeys(const GlobalKeys *keys, QObject *parent = nullptr);

    static CommandKeys *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /// Key by key in the notation of Vesk's texts; empty if the combination is switched off.
    [[nodiscard]] QStringList glyphs(Command command) const;
    /// As written in a sentence: "Alt+Super+N". Empty if the combination is switched off.
    [[nodiscard]] QString spelt(Command command) const;
    [[nodiscard]] bool isTaken(Command command) const;
    /// The programs that hold the taken keys: their names, or a phrase in place of them.
    [[nodiscard]] QString holders() const;
    /// Why the combination does not work, and what the user can do; empty if it works.
    [[nodiscard]] QString notice(Command command) const;

    [[nodiscard]] QString newNoteTitle() const;
    [[nodiscard]] QString takenTitle() const;
    [[nodiscard]] QStringList promptKeys() const;
    /// The same in a screen reader's words.
    [[nodiscard]] QString promptSpoken() const;
    [[nodiscard]] bool isPromptTapped() const;
    [[nodiscard]] bool isPromptTaken() const;

Q_SIGNALS:
    void changed();

private:
    /// The user's file as the user knows it.
    [[nodiscard]] QString fileName() const;

    const GlobalKeys *m_keys;
};

/// Makes the program's keys available to the views of an engine; the keys must outlive the views. Must be
/// called before the views are created.
void lendKeys(QQmlEngine &engine, const GlobalKeys &keys);

} // namespace vesk
