// SPDX-License-Identifier: MIT
#pragma once

#include <QUuid>

namespace vesk {

/// The stable identity of a note or prompt. Both share one identity space.
using RecordId = QUuid;

struct RecordIdHash
{
    size_t operator()(const RecordId &id) const noexcept { return qHash(id); }
};

class Note;
class Prompt;

/// Receives every change of the records that it holds. Implemented by the store.
class RecordObserver
{
public:
    virtual void noteChanged(Note &note) = 0;
    virtual void promptChanged(Prompt &prompt) = 0;

protected:
    ~RecordObserver() = default;
};

} // namespace vesk
