// SPDX-License-Identifier: MIT
#include "client/noteslist.h"

#include "notes/markup.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

void sortNewestFirst(std::vector<Note::Fields> &notes)
{
    std::ranges::stable_sort(notes, std::greater(), &Note::Fields::updatedAt);
}

QDateTime timeOf(Date date)
{
    const auto sinceEpoch = std::chrono::floor<std::chrono::milliseconds>(date.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count()).toUTC();
}

QJsonObject toJson(const Note::Fields &note)
{
    QJsonObject object{
        {u"id"_s, note.id.toString(QUuid::WithoutBraces)},
        {u"text"_s, note.text.toString()},
        {u"createdAt"_s, timeOf(note.createdAt).toString(Qt::ISODateWithMs)},
        {u"updatedAt"_s, timeOf(note.updatedAt).toString(Qt::ISODateWithMs)},
        {u"isPinned"_s, note.isPinned},
    };
    const std::pair<QString, const std::optional<QString> &> sources[] = {
        {u"sourceApp"_s, note.sourceApp},
        {u"sourceBundleID"_s, note.sourceBundleID},
        {u"sourceTitle"_s, note.sourceTitle},
        {u"sourceURL"_s, note.sourceURL},
    };
    for (const auto &[name, value] : sources) {
        if (value)
            object.insert(name, *value);
    }
    return object;
}

} // namespace

QByteArray notesAsLines(std::vector<Note::Fields> notes)
{
    sortNewestFirst(notes);
    QByteArray lines;
    for (const Note::Fields &note : notes) {
        const QString time = timeOf(note.updatedAt).toLocalTime().toString(u"yyyy-MM-dd HH:mm"_s);
        // A title is a single line already. Drop other control characters, which could control the terminal.
        QString title = markup::title(note.text.toString());
        title.removeIf([](QChar character) { return character.category() == QChar::Other_Control; });
        lines += time.toUtf8() + '\t' + title.toUtf8() + '\n';
    }
    return lines;
}

QByteArray notesAsJson(std::vector<Note::Fields> notes)
{
    sortNewestFirst(notes);
    QJsonArray array;
    for (const Note::Fields &note : notes)
        array.append(toJson(note));
    return QJsonDocument(array).toJson();
}

} // namespace vesk
