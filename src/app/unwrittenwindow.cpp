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
    : UnwrittenWindow(engine, store.unwrittenTexts().join(u"\n\n"_s), pasteboard)
{
}

UnwrittenWindow::UnwrittenWindow(QQmlEngine &engine, const QString &texts, Pasteboard &pasteboard)
    : m_window(engine, contentFor(texts))
{
    connect(&m_window, &MessageWindow::accepted, this, [this, texts, &pasteboard] {
        pasteboard.setString(texts);
        m_window.setAcceptLabel(tr("Copied"));
    });
    connect(&m_window, &MessageWindow::rejected, this, &UnwrittenWindow::quitRequested);
}

} // namespace vesk
