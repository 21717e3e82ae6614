// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/keyboard.h"

#include <QList>
#include <QMap>
#include <QSize>
#include <QStringList>

namespace vesk {

/// What Vesk promises about an application in front of the user.
enum class Check {
    Whole,
    Part,
    Nothing,
    Source,
    Address,
    Clipboard,
    Untouched,
    Paste,
};

/// All of them in their order, and what a reader calls each.
[[nodiscard]] const QList<std::pair<Check, QString>> &allChecks();

/// What the application shows, made by the test.
enum class Document {
    /// A text file.
    Text,
    Pdf,
    /// A page from the test's own server with nothing but text.
    Page,
    /// The same page from a file.
    FilePage,
    /// A page with a text field that has the keyboard.
    Field,
    /// A page that is another page's frame, with a text field that has the keyboard.
    Frame,
    /// A page with a password field that has the keyboard.
    Password,
    /// The same, but the page moves the keyboard elsewhere as soon as the password is selected.
    RestlessPassword,
    /// What a program has printed on a terminal.
    Output,
};

[[nodiscard]] constexpr bool isPassword(Document document)
{
    return document == Document::Password || document == Document::RestlessPassword;
}

/// One way of using one application as people do.
struct ApplicationCase
{
    /// Key combinations, one after the other.
    using Keys = QList<QList<xcb_keysym_t>>;

    QString name;
    QString program;
    /// "%1" stands for the document.
    QStringList arguments;
    Document document = Document::Text;
    /// Whether it is started before anything has switched accessibility on, as on a user's first day.
    bool isStartedFirst = false;

    /// What a note says of where it comes from.
    QString applicationName;
    QString bundleIdentifier;

    /// Selects everything; where there are none, the first line is clicked three times.
    Keys selectAll;
    /// Selects the first word.
    Keys selectPart;
    /// Leaves nothing selected; where there are none, the middle of the window is clicked.
    Keys deselect;
    Keys copy;

    /// What such an application has no use for.
    QList<Check> without;
    /// What is known not to work, and why.
    QMap<Check, QString> limits;
};

/// Small applications, which every test run can have.
[[nodiscard]] QList<ApplicationCase> lightApplications();
/// Browsers, an office and others of that size.
[[nodiscard]] QList<ApplicationCase> heavyApplications();

} // namespace vesk
