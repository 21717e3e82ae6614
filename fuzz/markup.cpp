// SPDX-License-Identifier: MIT
#include "notes/markup.h"
#include "check.h"

using namespace vesk;

namespace {

void tryText(const QString &text, const QString &added)
{
    const qsizetype lineCount = text.count(u'\n') + 1;
    check(markup::lines(text).size() == lineCount);
    check(markup::expandMarkup(text).count(u'\n') + 1 == lineCount);
    check(!markup::title(text).contains(u'\n') && !markup::preview(text).contains(u'\n'));

    const QList<ChecklistItem> items = markup::checklistItems(text);
    const std::optional<Progress> progress = markup::progress(text);
    check(progress.has_value() == !items.isEmpty());
    check(!progress || (progress->total == items.size() && progress->done <= progress->total));
    for (const ChecklistItem &item : items) {
        const QString toggled = markup::toggledItem(text, item.line);
        check(toggled.size() == text.size() && markup::toggledItem(toggled, item.line) == text);
    }
    check(markup::toggledItem(text, -1) == text && markup::toggledItem(text, lineCount) == text);

    // The added text is there, and the previous text is kept.
    check(markup::appended(text, added).contains(markup::trimmed(text)));
    static_cast<void>(markup::withChecklistItems(text, added));
    for (const ChecklistItem &item : markup::checklistItems(markup::checklist(added)))
        check(!item.isDone);
    check(markup::cleanChecklist(text).size() <= text.size());

    const QString trimmed = markup::trimmed(text);
    check(markup::trimmed(trimmed) == trimmed && trimmed.isEmpty() == markup::isBlank(text));
    const QString wellFormed = markup::wellFormed(text);
    check(wellFormed.isValidUtf16() && wellFormed.size() == text.size());
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString utf8 = QString::fromUtf8(bytesOf(data, size));
    tryText(utf8.section(QChar::Null, 0, 0), utf8.section(QChar::Null, 1));
    tryText(utf8, utf8);
    const QString units = unitsOf(data, size);
    tryText(units, utf8);
    return 0;
}
