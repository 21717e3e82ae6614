// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace vesk {

class SectionedListModel;

/// Which card is selected, if any, and how the selection moves in the list that is shown. Owned by the
/// panel's model.
class CardSelection final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// The identity of the selected card's record; empty for none.
    Q_PROPERTY(QString cardId READ cardId NOTIFY changed)

public:
    enum class Target {
        Card,
        Control,
    };
    Q_ENUM(Target)

    /// The list has to outlive this, as has each that takes its place.
    explicit CardSelection(const SectionedListModel &list);

    void setList(const SectionedListModel &list) { m_list = &list; }

    /// The record that keys act on: the selected one while its card is in the list that is shown. A
    /// card that a search, a folded section or another tab has taken away comes back selected, but
    /// until then there is none.
    [[nodiscard]] std::optional<RecordId> selected() const;
    [[nodiscard]] QString cardId() const;
    void select(const std::optional<RecordId> &id);
    /// Selects the next card, or with -1 the one before; without a selection the first or the last.
    void move(int delta);
    /// A record is about to be deleted: what takes its card's place is selected, if that card was.
    void leave(const RecordId &id);
    /// Selects the first card, unless one that is shown is selected. False if there is no card.
    Q_INVOKABLE bool selectSomething();

    /// Whether the user can see what a key is about to act on: the selected card, or with
    /// `Target::Control` the button in the list that has the keyboard. If not, for it was scrolled
    /// away, the view scrolls it back. True if no view is shown.
    [[nodiscard]] bool isInSight(Target target);
    /// The view's answer to `sightAsked` if it had to scroll.
    Q_INVOKABLE void reportOutOfSight() { m_isInSight = false; }

Q_SIGNALS:
    void changed();
    /// The view that shows the list has to answer before it returns.
    void sightAsked(vesk::CardSelection::Target target);

private:
    /// Where the selected card is among those shown.
    [[nodiscard]] std::optional<int> index() const;

    const SectionedListModel *m_list;
    std::optional<RecordId> m_selected;
    bool m_isInSight = true;
};

} // namespace vesk
