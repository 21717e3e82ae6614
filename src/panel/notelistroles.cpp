// SPDX-License-Identifier: MIT
// The part of the list of notes that provides the data of cards.
#include "notes/notesstore.h"
#include "panel/carddata.h"
#include "panel/notelistmodel.h"

namespace vesk {

QHash<int, QByteArray> NoteListModel::roleNames() const
{
    QHash<int, QByteArray> names = SectionedListModel::roleNames();
    names.insert({{TextRole, "text"},
                  {TitleRole, "title"},
                  {PreviewRole, "preview"},
                  {SpokenRole, "spoken"},
                  {ItemTextsRole, "itemTexts"},
                  {ItemsDoneRole, "itemsDone"},
                  {ItemsRightToLeftRole, "itemsRightToLeft"},
                  {ItemLinesRole, "itemLines"},
                  {FurtherItemsRole, "furtherItems"},
                  {DoneRole, "done"},
                  {TotalRole, "total"},
                  {TimeRole, "time"},
                  {SourceRole, "source"},
                  {SourceBundleRole, "sourceBundle"},
                  {SourceLabelRole, "sourceLabel"},
                  {SourceTipRole, "sourceTip"},
                  {PinnedRole, "isPinned"}});
    return names;
}

QVariant NoteListModel::cardData(const RecordId *id, int role) const
{
    const Note *note = id ? m_store.findNote(*id) : nullptr;
    switch (role) {
    case TextRole:
        return note ? note->text() : QString();
    case TitleRole:
        return note ? carddata::title(*note) : QString();
    case PreviewRole:
        return note ? carddata::preview(*note) : QString();
    case SpokenRole:
        return note ? carddata::spoken(*note, m_relativeTime.text(note->updatedAt(), m_clock.now()))
                    : QString();
    case ItemTextsRole:
        return note ? carddata::itemTexts(*note) : QStringList();
    case ItemsDoneRole:
        return QVariant::fromValue(note ? carddata::itemsDone(*note) : QList<bool>());
    case ItemsRightToLeftRole:
        return QVariant::fromValue(note ? carddata::itemsRightToLeft(*note) : QList<bool>());
    case ItemLinesRole:
        return QVariant::fromValue(note ? carddata::itemLines(*note) : QList<int>());
    case FurtherItemsRole:
        return note ? carddata::furtherItems(*note) : 0;
    case DoneRole:
        return note ? static_cast<int>(note->progress().value_or(Progress{}).done) : 0;
    case TotalRole:
        return note ? static_cast<int>(note->progress().value_or(Progress{}).total) : 0;
    case TimeRole:
        return note ? m_relativeTime.text(note->updatedAt(), m_clock.now()) : QString();
    case SourceRole:
        return note ? note->sourceApp().value_or(QString()) : QString();
    case SourceBundleRole:
        return note ? note->sourceBundleID().value_or(QString()) : QString();
    case SourceLabelRole:
        return note ? carddata::sourceLabel(*note) : QString();
    case SourceTipRole:
        return note ? carddata::sourceTip(*note) : QString();
    case PinnedRole:
        return note ? note->isPinned() : false;
    default:
        return {};
    }
}

} // namespace vesk
