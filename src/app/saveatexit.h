// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace vesk {

class NotesStore;

/// While it exists, pending changes are also written when the program exits at once (`std::exit`), as the
/// toolkit does when it has lost the display. One per program.
class SaveAtExit final
{
public:
    explicit SaveAtExit(NotesStore &store);
    ~SaveAtExit();
    Q_DISABLE_COPY_MOVE(SaveAtExit)
};

} // namespace vesk
