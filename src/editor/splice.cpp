// SPDX-License-Identifier: MIT
#include "editor/splice.h"

#include "editor/editrules.h"

namespace vesk {

Splice difference(const QString &before, const QString &after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype head = 0;
    while (head < shorter && before.at(head) == after.at(head))
        ++head;
    // Two emoji often share the first or the second half of their surrogate pairs.
    if (editrules::isInsidePair(before, head))
        --head;
    qsizetype tail = 0;
    while (tail < shorter - head && before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;
    if (editrules::isInsidePair(before, before.size() - tail))
        --tail;
    return {.position = head,
            .removed = before.sliced(head, before.size() - head - tail),
            .inserted = after.sliced(head, after.size() - head - tail)};
}

} // namespace vesk
