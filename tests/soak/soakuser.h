// SPDX-License-Identifier: MIT
#pragma once

#include "soak/ledger.h"
#include "soak/opentext.h"

#include <QRandomGenerator>

#include <array>

namespace vesk {

struct SoakWorld;

/// A user who does random things with the keyboard, the pointer and the desktop around the program.
class SoakUser final
{
public:
    /// The same seed repeats the same actions, as long as the program behaves the same.
    explicit SoakUser(int seed)
        : m_random(static_cast<quint32>(seed))
    {
    }

    /// Performs one action, and returns its possible effects on a store with these contents.
    [[nodiscard]] Ledger::Effect act(SoakWorld &world, const Ledger::Entries &entries);

    /// What the last action may have done to an open text.
    [[nodiscard]] const OpenText &openText() const { return m_openText; }

    /// A description of the last action.
    [[nodiscard]] const QString &done() const { return m_done; }

private:
    struct Action
    {
        const char *name;
        int weight;
        void (SoakUser::*run)();
    };
    static const std::array<Action, 10> kActions;

    void press();
    void type();
    void compose();
    void click();
    void capture();
    void addToChecklist();
    void savePrompt();
    void useHotKey();
    void passTime();
    void changeDesktop();

    [[nodiscard]] int pick(qsizetype count) { return m_random.bounded(static_cast<int>(count)); }
    template <typename List>
    [[nodiscard]] const auto &oneOf(const List &list)
    {
        return list[pick(static_cast<qsizetype>(std::size(list)))];
    }
    [[nodiscard]] bool isInPanel() const;
    /// The newest note or prompt that `isWanted` accepts.
    [[nodiscard]] std::optional<RecordId> newest(auto isWanted) const;
    void note(const QString &what) { m_done += u' ' + what; }
    void expectDraft(bool isSure);
    void expectAnything();
    /// Must be called after each key.
    void rememberOpenText();

    QRandomGenerator m_random;
    SoakWorld *m_world = nullptr;
    const Ledger::Entries *m_entries = nullptr;
    Ledger::Effect m_effect;
    OpenText m_openText;
    QString m_done;
};

} // namespace vesk
