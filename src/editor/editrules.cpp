// SPDX-License-Identifier: MIT
#include "editor/editrules.h"

#include "notes/markup.h"

namespace vesk::editrules {

namespace {

/// The first of the markers that the line begins with; empty if there is none.
template <typename... Markers>
QStringView markerOf(QStringView line, Markers... markers)
{
    for (const QStringView marker : {markers...}) {
        if (line.startsWith(marker))
            return marker;
    }
    return {};
}

QStringView withoutReturns(QStringView line)
{
    // Lines from other systems end in a carriage return, which does not count as content.
    while (line.endsWith(u'\r'))
        line.chop(1);
    return line;
}

} // namespace

bool isLineBreak(QChar character)
{
    switch (character.unicode()) {
    case u'\n':
    case u'\u0085':
    case u'\u2028':
    case u'\u2029':
        return true;
    default:
        return false;
    }
}

bool isInsidePair(QStringView text, qsizetype position)
{
    return position > 0 && position < text.size() && text.at(position - 1).isHighSurrogate()
           && text.at(position).isLowSurrogate();
}

std::optional<Replacement> wholeCharacters(QString text, const Selection &selected, Replacement asked)
{
    if (asked.length <= 0)
        return std::nullopt;
    text.remove(selected.start(), selected.length());
    const auto cuts = [&](int offset) { return isInsidePair(text, selected.start() + offset); };
    const int end = asked.start + asked.length;
    const int wholeStart = cuts(asked.start) ? asked.start - 1 : asked.start;
    const int wholeEnd = cuts(end) ? end + 1 : end;
    if (wholeStart == asked.start && wholeEnd == end)
        return std::nullopt;
    return Replacement{.start = wholeStart, .length = wholeEnd - wholeStart};
}

std::optional<MarkerChange> typedSpace(QStringView before)
{
    for (const markup::TypedForm &form : markup::kTypedForms) {
        if (before == form.typed.chopped(1))
            return MarkerChange{.length = before.size(), .marker = form.marker};
    }
    return std::nullopt;
}

LineBreak typedLineBreak(QStringView line)
{
    const QStringView content = withoutReturns(line);
    const QStringView marker = markerOf(content, markup::kBullet, markup::kUnticked, markup::kTicked);
    if (marker.isEmpty())
        return {};
    if (content == marker)
        return {.kind = LineBreak::Kind::EmptyItem, .marker = marker};
    return {.kind = LineBreak::Kind::NextItem,
            .marker = marker == markup::kTicked ? markup::kUnticked : marker};
}

MarkerChange toggledPrefix(QStringView line, QStringView marker)
{
    const QStringView current =
        markerOf(line, markup::kBullet, markup::kUnticked, markup::kTicked, markup::kHeading);
    const bool isTakenAway = current == marker || (current == markup::kTicked && marker == markup::kUnticked);
    return {.length = current.size(), .marker = isTakenAway ? QStringView() : marker};
}

bool startsWithBox(QStringView line)
{
    return !line.isEmpty()
           && (line.front() == markup::kUnticked.front() || line.front() == markup::kTicked.front());
}

QStringView toggledBox(QChar box)
{
    return (box == markup::kUnticked.front() ? markup::kTicked : markup::kUnticked).first(1);
}

} // namespace vesk::editrules
