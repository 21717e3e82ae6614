// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"
#include "notes/notesstore.h"

namespace vesk {

class StoreCopy;

/// What is said of a store that cannot be opened; if it is damaged and there is a copy of it, also how to
/// go on with that.
[[nodiscard]] MessageWindow::Content describeStoreFailure(const NotesStore::OpenResult &opened,
                                                          const StoreCopy &copy);

} // namespace vesk
