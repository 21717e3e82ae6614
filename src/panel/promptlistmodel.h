// SPDX-License-Identifier: MIT
#pragma once

#include "panel/sectionedlistmodel.h"

namespace vesk {

class NotesStore;
class Prompt;

/// The prompts that the panel lists: those written in it, those saved from a selection, and those that are
/// done. Follows the store and the search text. Owned by the panel's model. The base class is fully qualified
/// for the tools that read what QML sees.
class PromptListModel final : public vesk::SectionedListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one list.")
    /// The number of prompts that are not done, regardless of the search.
    Q_PROPERTY(int openCount READ openCount NOTIFY countsChanged)
    Q_PROPERTY(bool hasDone READ hasDone NOTIFY countsChanged)

public:
    /// The roles of a card, besides those of every list.
    enum PromptRole {
        TextRole = FirstCardRole, ///< QString
        DoneRole,                 ///< bool
    };

    PromptListModel(NotesStore &store, Defaults &defaults, QObject *parent = nullptr);

    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Shows only the prompts whose text contains the query.
    void setQuery(const QString &query);

    [[nodiscard]] int openCount() const;
    [[nodiscard]] bool hasDone() const;

Q_SIGNALS:
    void countsChanged();

protected:
    [[nodiscard]] QVariant cardData(const RecordId *id, int role) const override;

private:
    [[nodiscard]] bool matches(const Prompt &prompt) const;
    [[nodiscard]] Grouped grouped() const;

    void promptInserted(const Prompt &prompt);
    void promptRemoved(const RecordId &id);
    void promptChanged(const Prompt &prompt);

    NotesStore &m_store;
    QString m_query;
    QByteArray m_foldedQuery;
};

} // namespace vesk
