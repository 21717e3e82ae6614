// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace vesk {

class NotesStore;

/// While it lives, what is pending in the store is also written when the program is ended on the spot
/// (`std::exit`), as the toolkit does once it has lost the display. One for the program.
class SaveAtExit final
{
public:
    explicit SaveAtExit(NotesStore &store);
    ~SaveAtExit();
    Q_DISABLE_COPY_MOVE(SaveAtExit)
};

} // namespace vesk
