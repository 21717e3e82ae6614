// SPDX-License-Identifier: MIT
#include "panel/carddata.h"

#include "notes/linedirection.h"
#include "notes/note.h"

#include <QGuiApplication>

namespace vesk::carddata {

namespace {

/// More than a card's few lines can hold. Avoids laying out all of a huge line.
constexpr qsizetype kLongestShown = 600;

QList<ChecklistItem> shownItems(const Note &note)
{
    const QList<ChecklistItem> items = note.checklistItems();
    return items.first(std::min(kMaximumItems, items.size()));
}

} // namespace

QString title(const Note &note)
{
    const QString title = note.title();
    return title.isEmpty() ? QCoreApplication::translate("NoteCard", "New Note") : title.left(kLongestShown);
}

QString preview(const Note &note)
{
    return note.progress() ? QString() : note.preview().left(kLongestShown);
}

QStringList itemTexts(const Note &note)
{
    QStringList texts;
    for (const ChecklistItem &item : shownItems(note))
        texts.append(item.text.left(kLongestShown));
    return texts;
}

QList<bool> itemsDone(const Note &note)
{
    QList<bool> done;
    for (const ChecklistItem &item : shownItems(note))
        done.append(item.isDone);
    return done;
}

QList<bool> itemsRightToLeft(const Note &note)
{
    const QString text = note.text();
    QList<bool> directions;
    for (const ChecklistItem &item : shownItems(note))
        directions.append(lineDirection(text, item.line).value_or(QGuiApplication::layoutDirection())
                          == Qt::RightToLeft);
    return directions;
}

QList<int> itemLines(const Note &note)
{
    QList<int> lines;
    for (const ChecklistItem &item : shownItems(note))
        lines.append(static_cast<int>(item.line));
    return lines;
}

int furtherItems(const Note &note)
{
    const std::optional<Progress> progress = note.progress();
    return progress ? static_cast<int>(std::max<qsizetype>(0, progress->total - kMaximumItems)) : 0;
}

QString spoken(const Note &note, const QString &time)
{
    QStringList parts;
    if (note.isPinned())
        parts.append(QCoreApplication::translate("NoteCard", "pinned"));
    if (const std::optional<Progress> progress = note.progress())
        parts.append(QCoreApplication::translate("NoteCard", "%L1 of %L2 done")
                         .arg(progress->done)
                         .arg(progress->total));
    parts.append(time);
    if (const std::optional<QString> &app = note.sourceApp())
        parts.append(QCoreApplication::translate("NoteCard", "from %1").arg(*app));
    parts.append(preview(note));
    parts.removeAll(QString());
    return parts.join(u", ");
}

QString sourceLabel(const Note &note)
{
    const std::optional<QString> &app = note.sourceApp();
    if (!app)
        return {};
    // A window's title may contain line breaks; the label is a single line.
    const QString title = note.sourceTitle().value_or(QString()).left(kLongestShown).simplified();
    return title.isEmpty() ? QCoreApplication::translate("NoteCard", "from %1").arg(*app) : title;
}

QString sourceTip(const Note &note)
{
    if (const std::optional<QString> &url = note.sourceURL(); url && !url->isEmpty())
        return url->left(kLongestShown);
    const QString name = note.sourceApp().value_or(QCoreApplication::translate("NoteCard", "the app"));
    return QCoreApplication::translate("NoteCard", "Open %1").arg(name);
}

} // namespace vesk::carddata
