// SPDX-License-Identifier: MIT
#include "editor/linestyle.h"

#include "notes/markup.h"

#include <algorithm>

namespace vesk {

namespace {

void addBoldSpans(QList<StyledPart> &parts, QStringView line)
{
    const qsizetype mark = markup::kBold.size();
    qsizetype from = 0;
    while (true) {
        const qsizetype open = line.indexOf(markup::kBold, from);
        if (open < 0)
            return;
        // The marks enclose at least one character, so of five asterisks the third is bold.
        const qsizetype close = line.indexOf(markup::kBold, open + mark + 1);
        if (close < 0)
            return;
        parts.append({open + mark, close - open - mark, TextStyle::Bold});
        parts.append({open, mark, TextStyle::BoldMarks});
        parts.append({close, mark, TextStyle::BoldMarks});
        from = close + mark;
    }
}

void addListMarker(QList<StyledPart> &parts, QStringView line, bool isTitle)
{
    if (line.startsWith(markup::kBullet)) {
        parts.append({0, 1, isTitle ? TextStyle::TitleBullet : TextStyle::Bullet});
    } else if (line.startsWith(markup::kUnticked)) {
        parts.append({0, 1, TextStyle::Box});
    } else if (line.startsWith(markup::kTicked)) {
        parts.append({0, 1, TextStyle::Box});
        const qsizetype marker = markup::kTicked.size();
        if (line.size() > marker)
            parts.append({marker, line.size() - marker, TextStyle::Done});
    }
}

} // namespace

QList<StyledPart> styledParts(QStringView line, bool isTitle)
{
    QList<StyledPart> parts;
    const bool isHeading = line.startsWith(markup::kHeading);
    if (isTitle)
        parts.append({0, line.size(), TextStyle::Title});
    else if (isHeading)
        parts.append({0, line.size(), TextStyle::Heading});
    if (isHeading)
        parts.append({0, markup::kHeading.size(), TextStyle::HeadingMarker});
    else
        addListMarker(parts, line, isTitle);
    if (!isTitle)
        addBoldSpans(parts, line);
    return parts;
}

bool hasContent(QStringView line)
{
    return std::ranges::any_of(line, [](QChar character) { return !character.isSpace(); });
}

} // namespace vesk
