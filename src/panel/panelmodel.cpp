// SPDX-License-Identifier: MIT
#include "panel/panelmodel.h"

#include "notes/notesstore.h"
#include "panel/searchtext.h"
#include "platform/accessibility.h"
#include "platform/application.h"

namespace vesk {

PanelModel::PanelModel(NotesStore &store, Clock &clock, Defaults &defaults, Application &application,
                       Accessibility &accessibility, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_clock(clock)
    , m_application(application)
    , m_accessibility(accessibility)
    , m_notes(store, clock, defaults)
{
    connect(&accessibility, &Accessibility::trustChanged, this, &PanelModel::isTrustedChanged);
}

void PanelModel::requestField(Field field)
{
    if (field != Field::None)
        Q_EMIT showRequested();
    if (m_requestedField != field) {
        m_requestedField = field;
        Q_EMIT requestedFieldChanged();
    }
    ++m_fieldRequest;
    Q_EMIT fieldRequestChanged();
}

void PanelModel::commitDraft()
{
    const QString text = markup::trimmed(m_draft);
    if (text.isEmpty())
        return;
    m_store.insert(std::make_unique<Note>(m_clock, markup::expandMarkup(text)));
    setSearch({});
    // A save that fails is made up for by the store; the note is in the list already.
    m_store.save();
    setDraft({});
}

void PanelModel::deleteNote(const RecordId &id)
{
    Note *note = m_store.findNote(id);
    if (!note)
        return;
    moveFocusAway(id);
    m_store.remove(*note);
    m_store.save();
}

void PanelModel::togglePinned(const RecordId &id)
{
    if (Note *note = m_store.findNote(id)) {
        note->setPinned(!note->isPinned());
        m_store.save();
    }
}

void PanelModel::toggleItem(const QString &noteId, int line)
{
    if (Note *note = m_store.findNote(RecordId::fromString(noteId))) {
        note->toggleItem(line);
        m_store.save();
    }
}

void PanelModel::focus(const QString &id)
{
    setFocused(RecordId::fromString(id));
}

void PanelModel::askForTrust()
{
    m_accessibility.askForTrust();
}

bool PanelModel::isTrusted() const
{
    return m_accessibility.isProcessTrusted();
}

void PanelModel::prepareToShow()
{
    setSearch({});
    m_notes.setShown(true);
}

void PanelModel::becomeHidden()
{
    m_notes.setShown(false);
    setFocused(std::nullopt);
    requestField(Field::None);
}

void PanelModel::moveFocus(int delta)
{
    const int count = m_notes.visibleCount();
    if (count == 0)
        return;
    const std::optional<int> current = m_focused ? m_notes.visibleIndex(*m_focused) : std::nullopt;
    const int start = delta > 0 ? 0 : count - 1;
    const int target = current ? std::clamp(*current + delta, 0, count - 1) : start;
    setFocused(m_notes.visibleAt(target));
}

void PanelModel::moveFocusAway(const RecordId &id)
{
    const std::optional<int> index = m_focused == id ? m_notes.visibleIndex(id) : std::nullopt;
    if (!index)
        return;
    const int last = m_notes.visibleCount() - 1;
    if (last == 0)
        setFocused(std::nullopt);
    else
        setFocused(m_notes.visibleAt(*index < last ? *index + 1 : last - 1));
}

void PanelModel::setSearch(const QString &search)
{
    if (m_search == search)
        return;
    m_search = search;
    m_notes.setQuery(query());
    Q_EMIT searchChanged();
}

QString PanelModel::query() const
{
    return searchtext::query(m_search);
}

void PanelModel::setDraft(const QString &draft)
{
    if (m_draft == draft)
        return;
    m_draft = draft;
    Q_EMIT draftChanged();
}

QString PanelModel::focusedId() const
{
    return m_focused ? m_focused->toString(QUuid::WithoutBraces) : QString();
}

void PanelModel::setFocused(const std::optional<RecordId> &id)
{
    if (m_focused == id)
        return;
    m_focused = id;
    Q_EMIT focusedChanged();
}

void PanelModel::setActiveField(Field field)
{
    if (m_activeField == field)
        return;
    m_activeField = field;
    Q_EMIT activeFieldChanged();
}

void PanelModel::setComposing(bool isComposing)
{
    if (m_isComposing == isComposing)
        return;
    m_isComposing = isComposing;
    Q_EMIT isComposingChanged();
}

} // namespace vesk
