// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace vesk {

class SectionedListModel;

/// Which card is selected, if any, and how the selection moves in the current list. Owned by the panel's
/// model.
class CardSelection final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// The identity of the selected card's record; empty if there is none.
    Q_PROPERTY(QString cardId READ cardId NOTIFY changed)

public:
    enum class Target {
        Card,
        Control,
    };
    Q_ENUM(Target)

    /// The list must outlive this object, and so must each list that replaces it.
    explicit CardSelection(const SectionedListModel &list);

    void setList(const SectionedListModel &list) { m_list = &list; }

    /// The record that keys act on: the selected one while its card is in the current list. If a search, a
    /// collapsed section or another tab hides the card, this is nullopt until the card returns, still
    /// selected.
    [[nodiscard]] std::optional<RecordId> selected() const;
    [[nodiscard]] QString cardId() const;
    void select(const std::optional<RecordId> &id);
    /// Selects the next card, or with -1 the previous one; without a selection, the first or the last.
    void move(int delta);
    /// Call this when a record is about to be deleted. If its card is selected, selects the one that takes
    /// its place.
    void leave(const RecordId &id);
    /// Selects the first card unless a visible one is selected. Returns false if there is no card.
    Q_INVOKABLE bool selectSomething();

    /// Whether the user can see what a key is about to act on: the selected card, or with `Target::Control`
    /// the focused button in the list. If it has been scrolled away, the view scrolls it back. True if there
    /// is no view.
    [[nodiscard]] bool isInSight(Target target);
    /// The view calls this in response to `sightAsked` if it had to scroll.
    Q_INVOKABLE void reportOutOfSight() { m_isInSight = false; }

Q_SIGNALS:
    void changed();
    /// The view that shows the list must answer before this returns.
    void sightAsked(vesk::CardSelection::Target target);

private:
    /// The index of the selected card among those shown.
    [[nodiscard]] std::optional<int> index() const;

    const SectionedListModel *m_list;
    std::optional<RecordId> m_selected;
    bool m_isInSight = true;
};

} // namespace vesk
