// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QObject>
#include <QQmlEngine>

#include <optional>

namespace vesk {

class CardSelection;
class Note;
class NoteEditorController;
class NoteListModel;
class NotesStore;
class PanelKeyboard;

/// Which note is open in its editor, if any. Owned by the panel's model.
class OpenNote final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")
    /// The identity of the open note; empty if none is open.
    Q_PROPERTY(QString cardId READ cardId NOTIFY changed)

public:
    /// The dependencies of the note's editor. All must outlive this object.
    struct Needs
    {
        NotesStore &store;
        NoteListModel &notes;
        PanelKeyboard &keyboard;
        CardSelection &selection;
        NoteEditorController &editor;
    };

    explicit OpenNote(const Needs &needs);

    /// Opens a note in place and selects it, after closing any other.
    void open(const Note &note);
    /// Commits what is being composed, closes the open note and saves; removes the note if it is blank.
    Q_INVOKABLE void close();
    /// Closes the open note, and so removes it, if it is blank. Commits what is being composed in any case.
    void closeIfBlank();

    [[nodiscard]] const std::optional<RecordId> &id() const { return m_id; }
    [[nodiscard]] QString cardId() const;

Q_SIGNALS:
    void changed();

private:
    void setId(const std::optional<RecordId> &id);

    Needs m_needs;
    std::optional<RecordId> m_id;
};

} // namespace vesk
