// SPDX-License-Identifier: MIT
#include "app/accesswindow.h"

#include "platform/freedesktop/consent.h"

namespace vesk {

namespace {

MessageWindow::Content question()
{
    return {
        .heading = AccessWindow::tr("Let Vesk read what you select?"),
        .message = AccessWindow::tr(
            "When you press one of Vesk’s keys, Vesk reads the text that is selected, or was copied a "
            "moment before, and where it is: the application, its window’s title and, in a browser, the "
            "page’s address. At other times it only notices when a key or button is pressed (not which "
            "one), when something is selected, and whether a password field has the keyboard. It "
            "needs this to tell a current selection from an old one and to leave passwords alone. It sends "
            "nothing anywhere.\n\n"
            "You may have to restart applications that are already open before Vesk can read them."),
        .acceptLabel = AccessWindow::tr("Allow"),
        .rejectLabel = AccessWindow::tr("Not Now")};
}

} // namespace

AccessWindow::AccessWindow(QQmlEngine &engine, Consent &consent, Questions &questions)
    : m_questions(questions)
    , m_window(engine, question())
{
    connect(&m_window, &MessageWindow::accepted, this, [this, &consent] {
        consent.setGiven(true);
        m_questions.hide(m_window);
    });
    connect(&m_window, &MessageWindow::rejected, this, [this, &consent](MessageWindow::Rejection how) {
        // A user who merely closes the window has not changed their mind.
        if (how == MessageWindow::Rejection::ByButton)
            consent.setGiven(false);
        m_questions.hide(m_window);
    });
}

} // namespace vesk
