// SPDX-License-Identifier: MIT
// The markup rules that rewrite a text.
#include "notes/markup.h"

#include "notes/textlines.h"

namespace vesk::markup {

namespace {

/// Adds a line to a text that is built line by line. `isFirst` marks the first line, which may be empty.
void addLine(QString &text, QStringView line, bool isFirst)
{
    if (!isFirst)
        text += u'\n';
    text += line;
}

} // namespace

QString checklist(const QString &text)
{
    QString result;
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (trimmedLine.isEmpty())
            continue;
        addLine(result, kUnticked, result.isEmpty());
        result += displayText(trimmedLine.toString());
    }
    return result;
}

QString expandMarkup(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (RawLines line(text); line.next();) {
        QStringView rest = line.raw();
        QStringView marker;
        if (line.number() > 0) {
            for (const TypedForm &form : kTypedForms) {
                if (rest.startsWith(form.typed)) {
                    marker = form.marker;
                    rest = rest.sliced(form.typed.size());
                    break;
                }
            }
        }
        addLine(result, marker, line.number() == 0);
        result += rest;
    }
    return result;
}

QString cleanChecklist(const QString &text)
{
    // On such a line the marker's space is at the end, so it has been trimmed away.
    constexpr QStringView kEmptyUnticked = kUnticked.first(1);
    constexpr QStringView kEmptyTicked = kTicked.first(1);
    QString result;
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (!trimmedLine.isEmpty() && trimmedLine != kEmptyUnticked && trimmedLine != kEmptyTicked)
            addLine(result, trimmedLine, result.isEmpty());
    }
    return result;
}

QString toggledItem(const QString &text, qsizetype line)
{
    if (line < 0)
        return text;
    RawLines lines(text);
    do {
        if (!lines.next())
            return text;
    } while (lines.number() < line);

    // Unlike in trimming, only spaces and tabs count as indentation here.
    qsizetype box = lines.start();
    while (box < lines.end() && (text[box] == u' ' || text[box] == u'\t'))
        ++box;
    const QStringView rest = QStringView(text).sliced(box, lines.end() - box);
    if (!isCheckboxLine(rest))
        return text;
    QString result = text;
    result[box] = rest.startsWith(kUnticked) ? kTicked.front() : kUnticked.front();
    return result;
}

QString withChecklistItems(const QString &text, const QString &added)
{
    const QStringView body = trimmedView(QStringView(text), isLineBreak);
    qsizetype end = body.size();
    for (RawLines line(body); line.next();) {
        if (isCheckboxLine(line.trimmed()))
            end = line.end();
    }
    QString result = body.first(end).toString();
    addLine(result, checklist(added), false);
    result += body.sliced(end);
    return result;
}

QString appended(const QString &text, const QString &added)
{
    bool endsInChecklist = false;
    for (RawLines line(text); line.next();) {
        const QStringView trimmedLine = line.trimmed();
        if (!trimmedLine.isEmpty())
            endsInChecklist = isCheckboxLine(trimmedLine);
    }
    if (endsInChecklist) {
        QString result = trimmedView(QStringView(text), isLineBreak).toString();
        addLine(result, checklist(added), false);
        return result;
    }
    QString result = text;
    result += text.endsWith(u'\n') ? u"\n" : u"\n\n";
    result += added;
    return result;
}

QString trimmed(const QString &text)
{
    return trimmedView(QStringView(text), isSpaceOrLineBreak).toString();
}

QString wellFormed(const QString &text)
{
    if (text.isValidUtf16())
        return text;
    QString result = text;
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (!result[i].isSurrogate())
            continue;
        const bool isPair =
            result[i].isHighSurrogate() && i + 1 < result.size() && result[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else
            result[i] = QChar::ReplacementCharacter;
    }
    return result;
}

} // namespace vesk::markup
