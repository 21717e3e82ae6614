// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace vesk {

class NotesStore;
class PanelModel;

/// What the cards of the panel ask for. They name their record by its identity, as the lists tell it;
/// one that is gone is none, and nothing happens. Owned by the panel's model.
class CardActions final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one.")

public:
    CardActions(PanelModel &panel, NotesStore &store);

    // Of a note.
    Q_INVOKABLE void open(const QString &id);
    Q_INVOKABLE void edit(const QString &id, const QString &text);
    Q_INVOKABLE void togglePinned(const QString &id);
    Q_INVOKABLE void toggleItem(const QString &id, int line);
    /// Goes back to the page or the application that the note comes from, if there is one.
    Q_INVOKABLE void openSource(const QString &id);

    // Of a prompt.
    Q_INVOKABLE void toggleDone(const QString &id);

    // Of either.
    Q_INVOKABLE void remove(const QString &id);
    Q_INVOKABLE void copy(const QString &id);
    Q_INVOKABLE void pasteBack(const QString &id);
    /// False if there is no record with this identity.
    bool pasteBack(const RecordId &id);

Q_SIGNALS:
    /// A text shall go on the pasteboard as Vesk's own.
    void copyRequested(const QString &text);
    void urlRequested(const QUrl &url);
    /// An application shall be launched or brought forward, if it is installed.
    void applicationRequested(const QString &bundleIdentifier);

private:
    PanelModel &m_panel;
    NotesStore &m_store;
};

} // namespace vesk
