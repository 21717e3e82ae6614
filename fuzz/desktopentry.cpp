// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktopentry.h"
#include "check.h"

#include <QBuffer>

using namespace vesk;

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes = bytesOf(data, size);
    QBuffer file(&bytes);
    check(file.open(QIODevice::ReadOnly));
    const auto entry = DesktopEntry::read(file, QStringLiteral("org.example.Any"));
    if (!entry)
        return 0;
    check(!entry->name.contains(u'\n') && !entry->exec.contains(u'\n'));
    for (const QString &word : entry->command())
        check(word.size() <= entry->exec.size());
    return 0;
}
