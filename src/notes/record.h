// SPDX-License-Identifier: MIT
#pragma once

#include <QUuid>

namespace vesk {

/// The stable identity of a note or prompt; the two share one space of identities.
using RecordId = QUuid;

struct RecordIdHash
{
    size_t operator()(const RecordId &id) const noexcept { return qHash(id); }
};

class Note;
class Prompt;

/// Hears of every change of a record that it holds. Implemented by the store.
class RecordObserver
{
public:
    virtual void noteChanged(Note &note) = 0;
    virtual void promptChanged(Prompt &prompt) = 0;

protected:
    ~RecordObserver() = default;
};

} // namespace vesk
