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
    /// The identity of the open note; empty for none.
    Q_PROPERTY(QString cardId READ cardId NOTIFY changed)

public:
    /// What the note's editor works with. All of these must outlive this.
    struct Needs
    {
        NotesStore &store;
        NoteListModel &notes;
        PanelKeyboard &keyboard;
        CardSelection &selection;
        NoteEditorController &editor;
    };

    explicit OpenNote(const Needs &needs);

    /// Opens a note in its place and selects it, after closing the one that is open.
    void open(const Note &note);
    /// Closes the open note, with what is being composed in it, and saves; a note that was left blank is
    /// removed.
    Q_INVOKABLE void close();
    /// Closes the open note, and so removes it, if nothing is in it. Ends composing in any case.
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
