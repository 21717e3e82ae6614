// SPDX-License-Identifier: MIT
#include "panel/sectionedlistmodel.h"

#include "platform/defaults.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QString defaultsKey(const ListSections::Section &section)
{
    return u"collapsed."_s + section.key;
}

} // namespace

SectionedListModel::SectionedListModel(std::vector<ListSections::Section> sections, Defaults &defaults,
                                       QObject *parent)
    : QAbstractListModel(parent)
    , m_defaults(defaults)
    , m_sections(std::move(sections))
{
    for (size_t i = 0; i < m_sections.count(); ++i)
        m_sections.section(i).isCollapsed = defaults.boolForKey(defaultsKey(m_sections.section(i)));
    connect(this, &QAbstractItemModel::rowsInserted, this, &SectionedListModel::isEmptyChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &SectionedListModel::isEmptyChanged);
}

void SectionedListModel::load(Grouped entries)
{
    for (size_t i = 0; i < m_sections.count(); ++i) {
        ListSections::Section &section = m_sections.section(i);
        section.entries = std::move(entries.at(i));
        section.hasHeader = !section.entries.empty();
    }
}

int SectionedListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_sections.rowCount();
}

QHash<int, QByteArray> SectionedListModel::roleNames() const
{
    return {{IsHeaderRole, "isHeader"},
            {SectionTitleRole, "sectionTitle"},
            {SectionCountRole, "sectionCount"},
            {CollapsedRole, "isCollapsed"},
            {CardIdRole, "cardId"}};
}

QVariant SectionedListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ListSections::RowPlace place = m_sections.place(index.row());
    const ListSections::Section &section = m_sections.section(place.section);
    const RecordId *const id = place.card ? &section.entries.at(*place.card).id : nullptr;
    switch (role) {
    case IsHeaderRole:
        return id == nullptr;
    case SectionTitleRole:
        return id ? QString() : section.title;
    case SectionCountRole:
        return id ? 0 : static_cast<int>(section.entries.size());
    case CollapsedRole:
        return !id && section.isCollapsed;
    case CardIdRole:
        return id ? id->toString(QUuid::WithoutBraces) : QString();
    default:
        return cardData(id, role);
    }
}

void SectionedListModel::toggleSection(int row)
{
    if (row < 0 || row >= m_sections.rowCount())
        return;
    const size_t index = m_sections.place(row).section;
    ListSections::Section &section = m_sections.section(index);
    const int first = m_sections.cardRow({.section = index});
    const int last = first + static_cast<int>(section.entries.size()) - 1;
    setSweeping(false);
    if (section.isCollapsed) {
        beginInsertRows({}, first, last);
        section.isCollapsed = false;
        endInsertRows();
    } else {
        beginRemoveRows({}, first, last);
        section.isCollapsed = true;
        endRemoveRows();
    }
    m_defaults.setBool(section.isCollapsed, defaultsKey(section));
    headerChanged(index);
}

int SectionedListModel::rowOf(const QString &cardId) const
{
    const std::optional<CardPlace> found = m_sections.find(RecordId::fromString(cardId));
    return found && !m_sections.section(found->section).isCollapsed ? m_sections.cardRow(*found) : -1;
}

void SectionedListModel::setSweeping(bool isSweeping)
{
    if (m_isSweeping == isSweeping)
        return;
    m_isSweeping = isSweeping;
    Q_EMIT isSweepingChanged();
}

} // namespace vesk
