// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

struct StoreTrouble;

/// One sentence for the user about changes that could not be written because of `trouble`. `refused` is the
/// number of records left out while the others are written; 0 if none is written.
[[nodiscard]] QString describeSaveProblem(const StoreTrouble &trouble, qsizetype refused);

} // namespace vesk
