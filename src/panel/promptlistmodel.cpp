// SPDX-License-Identifier: MIT
#include "panel/promptlistmodel.h"

#include "notes/notesstore.h"
#include "panel/searchtext.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

// The sections in display order.
constexpr size_t kFollowUp = 0;
constexpr size_t kSaved = 1;
constexpr size_t kDone = 2;
constexpr size_t kSectionCount = 3;

size_t sectionOf(const Prompt &prompt)
{
    if (prompt.isDone())
        return kDone;
    return prompt.isCaptured() ? kSaved : kFollowUp;
}

ListSections::Entry entryOf(const Prompt &prompt)
{
    return {.date = prompt.createdAt(), .id = prompt.id()};
}

std::vector<ListSections::Section> allSections()
{
    return {{.key = u"prompts.followup"_s, .title = PromptListModel::tr("Follow-up prompts")},
            {.key = u"prompts.saved"_s, .title = PromptListModel::tr("Saved from selection")},
            {.key = u"prompts.done"_s, .title = PromptListModel::tr("Done")}};
}

} // namespace

PromptListModel::PromptListModel(NotesStore &store, Defaults &defaults, QObject *parent)
    : SectionedListModel(allSections(), defaults, parent)
    , m_store(store)
{
    load(grouped());
    LiveQuery<Prompt> &prompts = store.prompts();
    connect(&prompts, &LiveQueryBase::inserted, this,
            [this](qsizetype index) { promptInserted(m_store.prompts().at(index)); });
    connect(&prompts, &LiveQueryBase::removed, this,
            [this](qsizetype, const RecordId &id) { promptRemoved(id); });
    connect(&prompts, &LiveQueryBase::moved, this,
            [this](qsizetype, qsizetype to) { promptChanged(m_store.prompts().at(to)); });
    connect(&prompts, &LiveQueryBase::changed, this,
            [this](qsizetype index) { promptChanged(m_store.prompts().at(index)); });
}

QHash<int, QByteArray> PromptListModel::roleNames() const
{
    QHash<int, QByteArray> names = SectionedListModel::roleNames();
    names.insert({{TextRole, "text"}, {DoneRole, "isDone"}});
    return names;
}

QVariant PromptListModel::cardData(const RecordId *id, int role) const
{
    const Prompt *prompt = id ? m_store.findPrompt(*id) : nullptr;
    switch (role) {
    case TextRole:
        return prompt ? prompt->text() : QString();
    case DoneRole:
        return prompt && prompt->isDone();
    default:
        return {};
    }
}

void PromptListModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    m_foldedQuery = searchtext::folded(query);
    regroup(grouped(), Regroup::AtOnce);
    Q_EMIT searched();
}

int PromptListModel::openCount() const
{
    return static_cast<int>(m_store.prompts().count() - m_store.donePrompts().size());
}

bool PromptListModel::hasDone() const
{
    return !m_store.donePrompts().isEmpty();
}

bool PromptListModel::matches(const Prompt &prompt) const
{
    return m_foldedQuery.isEmpty() || searchtext::folded(prompt.text()).contains(m_foldedQuery);
}

PromptListModel::Grouped PromptListModel::grouped() const
{
    Grouped wanted(kSectionCount);
    const LiveQuery<Prompt> &prompts = m_store.prompts();
    for (qsizetype i = 0; i < prompts.count(); ++i) {
        const Prompt &prompt = prompts.at(i);
        if (matches(prompt))
            wanted.at(sectionOf(prompt)).push_back(entryOf(prompt));
    }
    return wanted;
}

void PromptListModel::promptInserted(const Prompt &prompt)
{
    setSweeping(false);
    if (matches(prompt))
        place(sectionOf(prompt), entryOf(prompt));
    Q_EMIT countsChanged();
}

void PromptListModel::promptRemoved(const RecordId &id)
{
    setSweeping(false);
    if (const std::optional<CardPlace> found = sections().find(id))
        take(*found);
    Q_EMIT countsChanged();
}

void PromptListModel::promptChanged(const Prompt &prompt)
{
    // A prompt's text never changes, so neither does whether it matches the search.
    setSweeping(false);
    if (const std::optional<CardPlace> found = sections().find(prompt.id()))
        moveTo(*found, sectionOf(prompt), prompt.createdAt());
    Q_EMIT countsChanged();
}

} // namespace vesk
