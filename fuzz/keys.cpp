// SPDX-License-Identifier: MIT
#include "check.h"
#include "input/keysettings.h"

/// The file in which the user configures other combinations.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(vesk::bytesOf(data, size));
    const vesk::KeySettings settings = vesk::readKeySettings(text, nullptr);
    vesk::check(settings.problems.size() <= text.count(u'\n') + 1 + qsizetype(settings.combinations.size()));
    return 0;
}
