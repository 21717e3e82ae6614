// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

namespace vesk {

/// A text for an AI chat, kept until it is used. Owned by the store that it is inserted into. Two prompts are
/// equal exactly if their identities are.
class Prompt final
{
public:
    enum class Origin {
        /// Written in the panel.
        FollowUp,
        /// Saved from a selection in another application.
        Captured,
    };

    /// Every stored field, to recreate a prompt exactly.
    struct Fields
    {
        RecordId id;
        QString text;
        bool isDone = false;
        Date createdAt{};
        bool isCaptured = false;
    };

    /// A new prompt, created now and not done. Lone surrogates in the text become U+FFFD.
    Prompt(const Clock &clock, const QString &text, Origin origin);
    /// A prompt as it was stored.
    explicit Prompt(Fields fields);
    Prompt(const Prompt &) = delete;
    Prompt &operator=(const Prompt &) = delete;

    void toggleDone();

    [[nodiscard]] const RecordId &id() const { return m_fields.id; }
    [[nodiscard]] const QString &text() const { return m_fields.text; }
    [[nodiscard]] bool isDone() const { return m_fields.isDone; }
    [[nodiscard]] Date createdAt() const { return m_fields.createdAt; }
    [[nodiscard]] bool isCaptured() const { return m_fields.isCaptured; }

    /// Receives this prompt's changes; null until the prompt is inserted. Set by the store.
    void setObserver(RecordObserver *observer) { m_observer = observer; }

    friend bool operator==(const Prompt &a, const Prompt &b) { return a.id() == b.id(); }

private:
    Fields m_fields;
    RecordObserver *m_observer = nullptr;
};

[[nodiscard]] inline size_t qHash(const Prompt &prompt, size_t seed = 0)
{
    return qHash(prompt.id(), seed);
}

} // namespace vesk
