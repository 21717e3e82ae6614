// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/keyboard.h"

#include <QList>
#include <QMap>
#include <QSize>
#include <QStringList>

namespace vesk {

/// What Vesk promises for the frontmost application.
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

/// All checks in order, with their titles for readers.
[[nodiscard]] const QList<std::pair<Check, QString>> &allChecks();

/// The document that the application shows, created by the test.
enum class Document {
    /// A text file.
    Text,
    Pdf,
    /// A text-only page from the test's own server.
    Page,
    /// The same page from a file.
    FilePage,
    /// A page with a focused text field.
    Field,
    /// A page that contains a frame with a focused text field.
    Frame,
    /// A page with a focused password field.
    Password,
    /// The same, but the page moves the focus elsewhere as soon as the password is selected.
    RestlessPassword,
    /// The output of a program in a terminal.
    Output,
};

[[nodiscard]] constexpr bool isPassword(Document document)
{
    return document == Document::Password || document == Document::RestlessPassword;
}

/// A typical way of using an application.
struct ApplicationCase
{
    /// Key combinations, pressed in sequence.
    using Keys = QList<QList<xcb_keysym_t>>;

    QString name;
    QString program;
    /// "%1" stands for the document.
    QStringList arguments;
    Document document = Document::Text;
    /// Whether the application is started before accessibility is switched on, as on a user's first day.
    bool isStartedFirst = false;

    /// The application's name in a note's source.
    QString applicationName;
    QString bundleIdentifier;

    /// Select everything. If empty, the first line is triple-clicked.
    Keys selectAll;
    /// Select the first word.
    Keys selectPart;
    /// Clear the selection. If empty, the middle of the window is clicked.
    Keys deselect;
    Keys copy;

    /// Checks that do not apply to such an application.
    QList<Check> without;
    /// Checks that are known to fail, and why.
    QMap<Check, QString> limits;
};

/// Small applications that every test run can use.
[[nodiscard]] QList<ApplicationCase> lightApplications();
/// Browsers, an office suite and other large applications.
[[nodiscard]] QList<ApplicationCase> heavyApplications();

} // namespace vesk
