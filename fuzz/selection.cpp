// SPDX-License-Identifier: MIT
#include "check.h"
#include "notes/markup.h"
#include "platform/x11/selectionbytes.h"
#include "platform/x11/xsettingsdata.h"

using namespace vesk;

/// The answers of a selection's owner, and the property of the settings manager, which any program can
/// become.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    for (const auto encoding : {selectionbytes::Encoding::Utf8, selectionbytes::Encoding::Latin1}) {
        const QString text = selectionbytes::text(bytes, encoding);
        check(text.size() <= bytes.size());
        check(text.isValidUtf16());
        // What happens to a captured text before it becomes a note.
        const QString trimmed = markup::trimmed(text);
        check(QString::fromUtf8(markup::wellFormed(trimmed).toUtf8()).size() <= trimmed.size());
        static_cast<void>(markup::checklist(trimmed));
    }
    check(selectionbytes::atoms(bytes).size() == bytes.size() / 4);
    static_cast<void>(looksFrom(xsettingsFrom(bytes)));
    return 0;
}
