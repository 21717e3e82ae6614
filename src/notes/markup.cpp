// SPDX-License-Identifier: MIT
#include "notes/markup.h"

#include "notes/textlines.h"

#include <algorithm>

namespace vesk::markup {

namespace {

[[nodiscard]] QString displayed(QStringView line)
{
    // Each marker is looked for in what the previous one has left, so the order matters: "• # a" loses both,
    // "☐ • a" keeps the bullet.
    for (const QStringView marker : {kBullet, kUnticked, kTicked, kHeading}) {
        if (line.startsWith(marker))
            line = line.sliced(marker.size());
    }
    QString result = line.toString();
    result.remove(kBold.toString());
    return result;
}

} // namespace

QStringList lines(const QString &text)
{
    QStringList result;
    for (RawLines line(text); line.next();)
        result.append(line.trimmed().toString());
    return result;
}

QString displayText(const QString &line)
{
    return displayed(line);
}

QString title(const QString &text)
{
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (!trimmedLine.isEmpty())
            return displayed(trimmedLine);
    }
    return {};
}

QString preview(const QString &text)
{
    constexpr QStringView kSeparator = u" \u00B7 ";
    QString result;
    qsizetype count = 0;
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (trimmedLine.isEmpty())
            continue;
        ++count;
        if (count > 2)
            result += kSeparator;
        if (count > 1)
            result += displayed(trimmedLine);
    }
    return result;
}

QList<ChecklistItem> checklistItems(const QString &text)
{
    QList<ChecklistItem> items;
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (!isCheckboxLine(trimmedLine))
            continue;
        items.append({
            .line = line.number(),
            .text = displayed(trimmedLine),
            .isDone = trimmedLine.startsWith(kTicked),
        });
    }
    return items;
}

std::optional<Progress> progress(const QString &text)
{
    Progress result;
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (!isCheckboxLine(trimmedLine))
            continue;
        ++result.total;
        if (trimmedLine.startsWith(kTicked))
            ++result.done;
    }
    return result.total == 0 ? std::nullopt : std::optional(result);
}

bool isBlank(const QString &text)
{
    return std::ranges::all_of(text, isSpaceOrLineBreak);
}

} // namespace vesk::markup
