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

/// What the cards of the panel, and its keys, do to the records. They name their record by its
/// identity, as the lists tell it; one that is gone is none, and nothing happens. Owned by the panel's
/// model.
class CardActions final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")

public:
    /// All of these have to outlive this.
    CardActions(NotesStore &store, Clock &clock, OpenNote &openNote, CardSelection &selection);

    // Of a note.
    /// What the user has made of a note's text. Saved within two seconds, and when the note is closed.
    Q_INVOKABLE void edit(const QString &id, const QString &text);
    Q_INVOKABLE void togglePinned(const QString &id);
    Q_INVOKABLE void toggleItem(const QString &id, int line);
    /// Goes back to the page or the application that the note comes from, if there is one.
    Q_INVOKABLE void openSource(const QString &id);

    Q_INVOKABLE void clearDonePrompts();

    // Of either.
    /// Opens a note; ticks a prompt as done, or no longer.
    Q_INVOKABLE void activate(const QString &id);
    /// Deletes it; the selection passes on to what takes its place.
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void copy(const QString &id);
    Q_INVOKABLE void pasteBack(const QString &id);

    // The same for the keys; false if there is no record with this identity.
    bool activate(const RecordId &id);
    bool remove(const RecordId &id);
    bool pasteBack(const RecordId &id);

Q_SIGNALS:
    /// A text shall go on the pasteboard as Vesk's own.
    void copyRequested(const QString &text);
    /// A text shall be pasted into the application that the user came from.
    void pasteRequested(const QString &text);
    void urlRequested(const QUrl &url);
    /// An application shall be launched or brought forward, if it is installed.
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
