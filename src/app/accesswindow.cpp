// SPDX-License-Identifier: MIT
#include "app/accesswindow.h"

#include "platform/freedesktop/consent.h"

namespace vesk {

namespace {

MessageWindow::Content question()
{
    return {.heading = QObject::tr("Let Vesk read what you select?"),
            .message = QObject::tr(
                "When you press one of Vesk’s keys, Vesk reads the text that is selected, and the "
                "name and the window title of the application that it is selected in. It reads "
                "nothing at other times, and sends nothing anywhere.\n\nApplications that are "
                "open already may have to be started again before Vesk can read them."),
            .acceptLabel = QObject::tr("Allow"),
            .rejectLabel = QObject::tr("Not Now")};
}

} // namespace

AccessWindow::AccessWindow(QQmlEngine &engine, Consent &consent)
    : m_window(engine, question())
{
    connect(&m_window, &MessageWindow::accepted, this, [this, &consent] {
        consent.setGiven(true);
        m_window.hide();
    });
    connect(&m_window, &MessageWindow::rejected, this, [this] { m_window.hide(); });
}

} // namespace vesk
