// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace vesk {

class CardSelection;
class Note;
class NoteListModel;
class NotesStore;
class PanelKeyboard;

/// Which note is open in its editor, if any. Owned by the panel's model.
class OpenNote final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// The identity of the open note; empty for none.
    Q_PROPERTY(QString cardId READ cardId NOTIFY changed)

public:
    /// All of these have to outlive this.
    OpenNote(NotesStore &store, NoteListModel &notes, PanelKeyboard &keyboard, CardSelection &selection);

    /// Opens a note in its place and selects it, after closing the one that is open.
    void open(const Note &note);
    /// Closes the open note and saves; a note that was left blank is removed.
    Q_INVOKABLE void close();
    /// Closes the open note, and so removes it, if nothing is in it.
    void closeIfBlank();

    [[nodiscard]] const std::optional<RecordId> &id() const { return m_id; }
    [[nodiscard]] QString cardId() const;

Q_SIGNALS:
    void changed();

private:
    void setId(const std::optional<RecordId> &id);

    NotesStore &m_store;
    NoteListModel &m_notes;
    PanelKeyboard &m_keyboard;
    CardSelection &m_selection;
    std::optional<RecordId> m_id;
};

} // namespace vesk
