// SPDX-License-Identifier: MIT
#include "notes/linedirection.h"

#include "notes/textlines.h"

#include <algorithm>

namespace vesk {

namespace {

char32_t codePointAt(QStringView text, qsizetype position)
{
    const QChar unit = text.at(position);
    if (unit.isHighSurrogate() && position + 1 < text.size() && text.at(position + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text.at(position + 1));
    return unit.unicode();
}

} // namespace

std::optional<Qt::LayoutDirection> lineDirection(QStringView line)
{
    // Text inside an isolate does not count. An unclosed isolate lasts until the end of the line.
    int isolates = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char32_t character = codePointAt(line, i);
        if (QChar::requiresSurrogates(character))
            ++i;
        switch (QChar::direction(character)) {
        case QChar::DirL:
            if (isolates == 0)
                return Qt::LeftToRight;
            break;
        case QChar::DirR:
        case QChar::DirAL:
            if (isolates == 0)
                return Qt::RightToLeft;
            break;
        case QChar::DirLRI:
        case QChar::DirRLI:
        case QChar::DirFSI:
            ++isolates;
            break;
        case QChar::DirPDI:
            isolates = std::max(0, isolates - 1);
            break;
        default:
            break;
        }
    }
    return std::nullopt;
}

std::optional<Qt::LayoutDirection> lineDirection(QStringView text, qsizetype line)
{
    std::optional<Qt::LayoutDirection> direction;
    for (RawLines lines(text); lines.next() && lines.number() <= line;) {
        if (const std::optional<Qt::LayoutDirection> own = lineDirection(lines.raw()))
            direction = own;
    }
    return direction;
}

} // namespace vesk
