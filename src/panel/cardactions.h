// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QCoroTask>

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QUrl>

namespace vesk {

class CardSelection;
class Clock;
class NotesStore;
class OpenNote;

/// What the panel's cards and keys do to records. Records are named by the identity that the lists give them;
/// if a record is gone, nothing happens. Owned by the panel's model.
class CardActions final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")

public:
    /// All must outlive this object.
    CardActions(NotesStore &store, Clock &clock, OpenNote &openNote, CardSelection &selection);

    // Of a note.
    /// What the user has made of a note's text. Saved within two seconds, and when the note is closed.
    Q_INVOKABLE void edit(const QString &id, const QString &text);
    Q_INVOKABLE void togglePinned(const QString &id);
    Q_INVOKABLE void toggleItem(const QString &id, int line);
    /// Returns to the page or application that the note comes from, if there is one.
    Q_INVOKABLE void openSource(const QString &id);

    Q_INVOKABLE void clearDonePrompts();

    // For notes and prompts.
    /// Opens a note; toggles whether a prompt is done.
    Q_INVOKABLE void activate(const QString &id);
    /// Deletes the record; the selection moves to the card that takes its place.
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void copy(const QString &id);
    Q_INVOKABLE void pasteBack(const QString &id);

    // The same for the keys; returns false if there is no record with this identity.
    bool activate(const RecordId &id);
    bool remove(const RecordId &id);
    bool pasteBack(const RecordId &id);

Q_SIGNALS:
    /// The receiver must put the text on the pasteboard as Vesk's own.
    void copyRequested(const QString &text);
    /// The receiver must paste the text into the application that the user came from.
    void pasteRequested(const QString &text);
    void urlRequested(const QUrl &url);
    /// The receiver must launch the application or bring it to the front, if it is installed.
    void applicationRequested(const QString &bundleIdentifier);

private:
    void save();
    static QCoro::Task<> saveSoon(QPointer<CardActions> self, Clock *clock);

    NotesStore &m_store;
    Clock &m_clock;
    OpenNote &m_openNote;
    CardSelection &m_selection;
    bool m_savesSoon = false;
};

} // namespace vesk
