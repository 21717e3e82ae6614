// SPDX-License-Identifier: MIT
#pragma once

#include "app/messagewindow.h"
#include "notes/notesstore.h"

namespace vesk {

/// Returns the message about a store at `path` that could not be opened and, if only a copy helps, how to
/// restore it.
[[nodiscard]] MessageWindow::Content describeStoreFailure(const NotesStore::OpenResult &opened,
                                                          const QString &path, Date now);

} // namespace vesk
