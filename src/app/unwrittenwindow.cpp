// SPDX-License-Identifier: MIT
#include "app/unwrittenwindow.h"

#include "notes/notesstore.h"
#include "platform/pasteboard.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

MessageWindow::Content contentFor(const QString &texts)
{
    return {.heading = UnwrittenWindow::tr("Some notes are not saved"),
            .message = UnwrittenWindow::tr(
                "Vesk could not write them to the disk, which may be full. It keeps trying while this window "
                "is open, and once more when you quit. To be safe, copy them and paste them elsewhere before "
                "that."),
            .acceptLabel = UnwrittenWindow::tr("Copy"),
            .rejectLabel = UnwrittenWindow::tr("Quit"),
            .details = texts,
            .isRejectCostly = true};
}

} // namespace

UnwrittenWindow::UnwrittenWindow(QQmlEngine &engine, const NotesStore &store, Pasteboard &pasteboard)
    : m_store(store)
    , m_window(engine, contentFor(texts()))
{
    connect(&m_window, &MessageWindow::accepted, this, [this, &pasteboard] {
        pasteboard.setString(texts());
        m_window.setAcceptLabel(tr("Copied"));
    });
    connect(&m_window, &MessageWindow::rejected, this, &UnwrittenWindow::quitRequested);
    connect(&store, &NotesStore::saveTried, this, &UnwrittenWindow::update);
}

QString UnwrittenWindow::texts() const
{
    return m_store.unwrittenTexts().join(u"\n\n"_s);
}

void UnwrittenWindow::update()
{
    if (texts().isEmpty()) {
        Q_EMIT quitRequested();
        return;
    }
    m_window.setDetails(texts());
    // There may be more now than the user has copied.
    m_window.setAcceptLabel(tr("Copy"));
}

} // namespace vesk
