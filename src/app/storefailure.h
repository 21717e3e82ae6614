// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"
#include "notes/notesstore.h"

namespace vesk {

/// What is said of the store at `path` that could not be opened; if only a copy of it helps, also how to go
/// on with that.
[[nodiscard]] MessageWindow::Content describeStoreFailure(const NotesStore::OpenResult &opened,
                                                          const QString &path, Date now);

} // namespace vesk
